#pragma once

#include "featuredialog.h"
#include "ui_zetocamconfigoutputdialog.h"

#include <QCoreApplication>

namespace ZetoGui {

class ZetoCamConfigOutputDialogPrivate : public FeatureDialogWithForm<Ui::ZetoCamConfigOutputDialog>
{
    Q_DECLARE_TR_FUNCTIONS(ZetoCamConfigOutputDialog)

public:
    using FeatureDialogWithForm::FeatureDialogWithForm;

    /// Once the form has its sizes.
    void fitFields();

protected:
    void buildForm() override;
    void bindFeatures() override;
};

} // namespace ZetoGui
