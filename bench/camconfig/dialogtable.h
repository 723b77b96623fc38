#pragma once

#include <ZetoCameraApi.h>
#include <ZetoCameraGuiApi/zetocamconfigcolordialog.h>
#include <ZetoCameraGuiApi/zetocamconfigframeabdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigoutputdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigpulsedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigstrobedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigtriggerdialog.h>

#include <memory>

/// A feature dialog to measure.
struct DialogRow
{
    const char* name;
    std::unique_ptr<QDialog> (*make)(ZetoCam::Device*);
};

template <typename Dialog>
std::unique_ptr<QDialog> makeDialog(ZetoCam::Device* device)
{
    return std::make_unique<Dialog>(device);
}

inline constexpr DialogRow dialogTable[] = {
    {"color", makeDialog<ZetoGui::ZetoCamConfigColorDialog>},
    {"frameab", makeDialog<ZetoGui::ZetoCamConfigFrameABDialog>},
    {"output", makeDialog<ZetoGui::ZetoCamConfigOutputDialog>},
    {"pulse", makeDialog<ZetoGui::ZetoCamConfigPulseDialog>},
    {"strobe", makeDialog<ZetoGui::ZetoCamConfigStrobeDialog>},
    {"trigger", makeDialog<ZetoGui::ZetoCamConfigTriggerDialog>},
};
