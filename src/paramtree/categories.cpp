#include "categories.h"

#include "genapiguard.h"
#include "genparamtreemodel.h"

namespace {

void visitBelow(const QAbstractItemModel& model, const QModelIndex& parent, const QString& parentPath,
                const CategoryVisitor& visitor)
{
    const int rows = model.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (!isCategory(index))
            continue;
        const QString path = parentPath + index.data().toString();
        visitor(index, path);
        visitBelow(model, index, path + QLatin1Char('/'), visitor);
    }
}

} // namespace

void visitCategories(const QAbstractItemModel& model, const CategoryVisitor& visitor)
{
    visitBelow(model, QModelIndex(), QString(), visitor);
}

bool isCategory(const QModelIndex& index)
{
    auto* const feature = index.data(GenParamTreeModel::FeatureRole).value<GenApi::IValue*>();
    return feature && genApiOr(false, [feature] {
               return nodeOf(*feature).GetPrincipalInterfaceType() == GenApi::intfICategory;
           });
}
