#pragma once

#include <QModelIndex>
#include <QString>

#include <functional>

class QAbstractItemModel;

/// Called with the index of a category in column 0 and its path: the names from the top down, joined by "/".
using CategoryVisitor = std::function<void(const QModelIndex& category, const QString& path)>;

/// Visits the categories of a parameter tree or of a proxy on one, parents before their children and rows in
/// order.
void visitCategories(const QAbstractItemModel& model, const CategoryVisitor& visitor);

/// True for the row of a category, in any column of a parameter tree or of a proxy on one.
bool isCategory(const QModelIndex& index);
