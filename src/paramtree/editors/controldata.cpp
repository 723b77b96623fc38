#include "controldata.h"

ControlData::ControlData(std::unique_ptr<QWidget> widget, Kind kind)
    : m_widget(std::make_shared<std::unique_ptr<QWidget>>(std::move(widget)))
    , m_kind(kind)
{
}

QWidget* ControlData::take(QWidget* parent) const
{
    if (!m_widget || !*m_widget)
        return nullptr;
    (*m_widget)->setParent(parent);
    return m_widget->release();
}

void registerControlTypes()
{
    qRegisterMetaType<ControlData>("ControlData");
    qRegisterMetaType<VariantData>("VariantData");
}
