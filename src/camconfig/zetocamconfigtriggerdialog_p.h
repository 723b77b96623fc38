#pragma once

#include "featuredialog.h"
#include "ui_zetocamconfigtriggerdialog.h"

namespace ZetoGui {

class ZetoCamConfigTriggerDialogPrivate : public FeatureDialogWithForm<Ui::ZetoCamConfigTriggerDialog>
{
public:
    using FeatureDialogWithForm::FeatureDialogWithForm;

protected:
    void bindFeatures() override;

private:
    void applyRules();
};

} // namespace ZetoGui
