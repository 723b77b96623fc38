#pragma once

#include <QLabel>

/// A short message beside a cell of an item view. It goes away by itself, with a click, or when the next one
/// comes.
class CellNote : public QLabel
{
public:
    /// Shows \a text next to \a cell, a rectangle of \a viewport.
    static void showBeside(QWidget* viewport, const QRect& cell, const QString& text);
    static void hideOn(const QWidget* viewport);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    CellNote(QWidget* viewport, const QString& text);
    void placeBeside(const QRect& cell);
};
