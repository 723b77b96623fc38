#pragma once

#include "framesize.h"

#include <ZetoGenParam.h>

#include <QObject>

#include <optional>

class QAbstractButton;

namespace ZetoGui {

/// One direction of a frame in the camera; null for a feature that it lacks.
struct ExtentFeatures
{
    ZetoGenParam::Int* size = nullptr;
    ZetoGenParam::Int* offset = nullptr;

    bool isAbout(const ZetoGenParam::Param* param) const { return param == size || param == offset; }
    bool isReadable() const;
    bool isWritable() const;
    FrameExtent present() const;
    ExtentLimits limits(const FrameExtent& present) const;
};

/// The buttons with the ready-made frame sizes: a choice is written to the camera, and the choice follows
/// what the camera holds.
class FrameSizeControl : public QObject
{
public:
    struct Buttons
    {
        QAbstractButton* fullFrame;
        QAbstractButton* qfhd;
        QAbstractButton* custom;
    };

    explicit FrameSizeControl(const Buttons& buttons);

    void bind(const ExtentFeatures& horizontal, const ExtentFeatures& vertical, const QObject* binding);

    bool isAbout(const ZetoGenParam::Param* param) const;

    /// Whether the camera can be set to the sizes now.
    bool isOffered() const;
    /// Whether the sensor has room for QFHD, as of the last show().
    bool hasQfhd() const { return m_hasQfhd; }

    /// Shows which size the camera holds. Nothing is written.
    void show();
    /// As show(), for another frame, of which nobody said yet that its size is a custom one.
    void showOtherFrame();

private:
    struct FrameArea
    {
        FrameExtent horizontal;
        FrameExtent vertical;

        bool operator==(const FrameArea& other) const
        {
            return horizontal == other.horizontal && vertical == other.vertical;
        }
    };

    void readCamera();
    QAbstractButton* buttonOfCamera() const;
    void choose(const QAbstractButton* button);
    void write(const FrameArea& area);

    const Buttons m_buttons;
    ExtentFeatures m_horizontal;
    ExtentFeatures m_vertical;
    FrameArea m_present;
    FrameArea m_full;
    FrameArea m_qfhd;
    bool m_hasQfhd = false;
    std::optional<FrameArea> m_custom; ///< the area that the person called a custom one, whatever it is
    bool m_showing = false;
};

} // namespace ZetoGui
