#pragma once

#include <ZetoGenParam.h>

#include <QObject>

class QSpinBox;

namespace ZetoGui {

class ZetoCamConfigMapper;

/// The line time for dual video, in which the frames are read out by turns: shows that of the selected frame
/// and writes what is entered to both.
class DualVideoControl : public QObject
{
public:
    DualVideoControl(QSpinBox* spinBox, const ZetoCamConfigMapper& mapper);

    /// Either feature may be null. Edits are written as long as \a binding lives.
    void bind(ZetoGenParam::Int* lineTime, ZetoGenParam::Enum* selector, const QObject* binding);

    /// Whether the camera lets the line time be written.
    bool isOffered() const;

    /// Shows what the camera holds. Nothing is written.
    void show();

private:
    void take(int lineTime);
    int32_t writeToOtherFrame(int64_t lineTime);

    QSpinBox* const m_spinBox;
    const ZetoCamConfigMapper& m_mapper;
    ZetoGenParam::Int* m_lineTime = nullptr;
    ZetoGenParam::Enum* m_selector = nullptr;
    bool m_showing = false;
};

} // namespace ZetoGui
