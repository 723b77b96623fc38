#pragma once

#include "digitalgaincontrol.h"
#include "dualvideocontrol.h"
#include "exposuretimecontrol.h"
#include "featuredialog.h"
#include "framesizecontrol.h"
#include "frametiming.h"
#include "izetocamconfigintconverter.h"
#include "ui_zetocamconfigframeabdialog.h"

#include <memory>

namespace ZetoGui {

class ZetoCamConfigFrameABDialogPrivate : public FeatureDialogWithForm<Ui::ZetoCamConfigFrameABDialog>,
                                          public IZetoCamConfigIntConverter
{
public:
    using FeatureDialogWithForm::FeatureDialogWithForm;

    // The fixed frame period: lines in the camera, microseconds in the dialog.
    int64_t ToWidget(int64_t value, ZetoGenParam::Int* param) override;
    int64_t FromWidget(int64_t value, ZetoGenParam::Int* param) override;

protected:
    void buildForm() override;
    void bindFeatures() override;
    void featureChanged(ZetoGenParam::Param* param) override;

private:
    void findFeatures();
    void readTrigger();

    void bindNumbers();
    void bindChoices();
    void bindSelector();
    void bindControls();
    void showUnits();
    void connectRules();

    void applyRules();
    void applyExposureRules();
    void applyFrameMode();
    void allow(std::initializer_list<QWidget*> widgets, bool allowed);

    void followSelector();
    void showFrameOfMode();
    QWidget* pageOf(const QString& frame) const;

    void showExposureTime();
    void followExposureTime();
    void showCurrentSize();

    LineTiming m_timing;
    bool m_triggerEnabled = false;
    bool m_returning = false; ///< from a tab that the camera did not take

    ZetoGenParam::Enum* m_selector = nullptr;
    ZetoGenParam::Enum* m_frameMode = nullptr;
    ZetoGenParam::Enum* m_triggerMode = nullptr;
    ZetoGenParam::Int* m_lineTime = nullptr;
    ZetoGenParam::Int* m_framePeriod = nullptr;
    ZetoGenParam::Int* m_widthActual = nullptr;
    ZetoGenParam::Int* m_heightActual = nullptr;

    std::unique_ptr<ExposureTimeControl> m_exposure;
    std::unique_ptr<DigitalGainControl> m_gain;
    std::unique_ptr<DualVideoControl> m_dualVideo;
    std::unique_ptr<FrameSizeControl> m_size;
};

} // namespace ZetoGui
