#pragma once

#include <QLabel>

namespace ZetoGui {

/// A label of one plain line that takes the room there is and cuts its text off with an ellipsis; the tool
/// tip has all of it.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};

} // namespace ZetoGui
