#pragma once

#include "framestate.h"

#include <array>

class QGridLayout;
class QLabel;
class QLineEdit;

namespace Ui {
class ZetoCamConfigMainWindow;
}

namespace ZetoGui {

class CameraInformation;
struct FrameInformation;

/// The main window's group "Camera Information".
class InformationBlock
{
public:
    explicit InformationBlock(const Ui::ZetoCamConfigMainWindow& form);

    /// One column for each frame, or one for a camera without frames.
    void layOut(bool hasTwoFrames);

    /// Fades the heading of a frame that the camera does not put out in \a mode.
    void setMode(FrameState::Mode mode);

    void show(const CameraInformation& information);
    void clear();

private:
    struct Column
    {
        QLabel* header;
        std::array<QLineEdit*, 4> edits; ///< size, frame rate, exposure time, frame time

        void show(const FrameInformation& frame) const;
    };

    void setUnits(const Ui::ZetoCamConfigMainWindow& form);

    QGridLayout* const m_grid;
    const Column m_frameA;
    const Column m_frameB;
    QLineEdit* const m_temperature;
};

} // namespace ZetoGui
