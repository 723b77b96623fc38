#pragma once

#include "featuredialog.h"
#include "ui_zetocamconfigstrobedialog.h"

#include <QCoreApplication>

namespace ZetoGui {

class ZetoCamConfigStrobeDialogPrivate : public FeatureDialogWithForm<Ui::ZetoCamConfigStrobeDialog>
{
    Q_DECLARE_TR_FUNCTIONS(ZetoCamConfigStrobeDialog)

public:
    using FeatureDialogWithForm::FeatureDialogWithForm;

protected:
    void buildForm() override;
    void bindFeatures() override;
    void featureChanged(ZetoGenParam::Param* param) override;

private:
    void layOutTimes(const QVector<QPair<QtZetoSliderSpinBox*, QString>>& times);
    void bindTimes();
    void showPicture();
};

} // namespace ZetoGui
