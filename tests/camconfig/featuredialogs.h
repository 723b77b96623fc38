#pragma once

#include "dialogfixture.h"

#include <ZetoCameraGuiApi/zetocamconfigcolordialog.h>
#include <ZetoCameraGuiApi/zetocamconfigframeabdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigoutputdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigpulsedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigstrobedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigtriggerdialog.h>

/// All feature dialogs.
inline const std::vector<DialogKind>& featureDialogs()
{
    static const std::vector<DialogKind> dialogs = {
        dialogKind<ZetoGui::ZetoCamConfigColorDialog>("color"),
        dialogKind<ZetoGui::ZetoCamConfigFrameABDialog>("frameab"),
        dialogKind<ZetoGui::ZetoCamConfigOutputDialog>("output"),
        dialogKind<ZetoGui::ZetoCamConfigPulseDialog>("pulse"),
        dialogKind<ZetoGui::ZetoCamConfigStrobeDialog>("strobe"),
        dialogKind<ZetoGui::ZetoCamConfigTriggerDialog>("trigger"),
    };
    return dialogs;
}
