#pragma once

#include "parameditor.h"

#include <QPushButton>

/// Runs a command once per click. While the camera works on it, clicks do nothing.
class CommandEditor : public QPushButton, public ParamEditor
{
public:
    CommandEditor();

    void fill(const QModelIndex& index) override;
    bool isBeingEdited() const override { return false; }
    QVariant takeEdit() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_isClicked = false;
    bool m_isBusy = false;
};
