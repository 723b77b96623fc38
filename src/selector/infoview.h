#pragma once

#include "camerainfo.h"

#include <QTreeView>

/// Names and values that can be read and copied, but not be changed or selected. The column of the names is
/// at least as wide as they are, until somebody gives it a width, which it keeps.
class InfoView : public QTreeView
{
    Q_OBJECT

public:
    explicit InfoView(QWidget* parent = nullptr);

    void setLines(const QVector<InfoLine>& lines);

public slots:
    void copyValue() const;
    /// All lines, name and value with a tab between them.
    void copyAll() const;

private:
    template <typename Slot>
    void addAction(const QString& text, const QKeySequence& shortcut, Slot slot);
    QString textAt(int row, int column) const;

    int m_fittedWidth = 0; ///< which the column of the names was given here
};
