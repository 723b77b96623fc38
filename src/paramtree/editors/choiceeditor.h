#pragma once

#include "controldata.h"
#include "parameditor.h"

#include <QComboBox>
#include <QVector>

/// Chooses one of the values that a feature can take. Those that are not available now are shown and cannot
/// be chosen.
class ChoiceEditor : public QComboBox, public ParamEditor
{
public:
    explicit ChoiceEditor(const QVector<VariantData>& choices);

    void adopt(const ParamEditor& fresh) override;
    void fill(const QModelIndex& index) override;
    bool isBeingEdited() const override;
    QVariant takeEdit() override;

protected:
    void showEvent(QShowEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void add(const VariantData& choice);
    int indexOf(const QVariant& editValue) const;

    bool m_hasEdit = false;
};
