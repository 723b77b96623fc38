#pragma once

#include "featuredialog.h"
#include "ui_zetocamconfigpulsedialog.h"

#include <QCoreApplication>

class QButtonGroup;

namespace ZetoGui {

class ZetoCamConfigPulseDialogPrivate : public FeatureDialogWithForm<Ui::ZetoCamConfigPulseDialog>
{
    Q_DECLARE_TR_FUNCTIONS(ZetoCamConfigPulseDialog)

public:
    using FeatureDialogWithForm::FeatureDialogWithForm;

    /// Once the form has its sizes.
    void fitFields();

protected:
    void buildForm() override;
    void bindFeatures() override;

private:
    void bindTimes();
    void bindSwitch();
    void showDerived();
    void showState(bool running);

    QButtonGroup* m_modes = nullptr; ///< owned by the dialog
};

} // namespace ZetoGui
