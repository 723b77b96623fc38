#pragma once

#include "featuredialog.h"
#include "ui_zetocamconfigcolordialog.h"

#include <array>

namespace ZetoGui {

class ZetoCamConfigColorDialogPrivate : public FeatureDialogWithForm<Ui::ZetoCamConfigColorDialog>
{
public:
    using FeatureDialogWithForm::FeatureDialogWithForm;

    void fitSpinBoxes();

protected:
    void buildForm() override;
    void bindFeatures() override;
    void featureChanged(ZetoGenParam::Param* param) override;

private:
    struct Channel
    {
        const char* feature;
        QtZetoSpinBox* spinBox;
        QPushButton* unity;
        QLabel* statistics;
        QVector<QWidget*> companions; ///< of the spin box
        ZetoGenParam::Int* coefficient = nullptr;
    };

    void bindUnity(const Channel& channel);
    void bindCoefficient(Channel& channel);
    void fitStatistics();

    std::array<Channel, 3> m_channels;
};

} // namespace ZetoGui
