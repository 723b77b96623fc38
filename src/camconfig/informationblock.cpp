#include "informationblock.h"

#include "camerainformation.h"
#include "informationtext.h"
#include "ui_zetocamconfigmainwindow.h"

namespace ZetoGui {

InformationBlock::InformationBlock(const Ui::ZetoCamConfigMainWindow& form)
    : m_grid(form.gridInformation)
    , m_frameA{form.lblFrameA,
               {form.lineEditSizeFrameA, form.lineEditFpsFrameA, form.lineEditExpFrameA,
                form.lineEditFtmFrameA}}
    , m_frameB{form.lblFrameB,
               {form.lineEditSizeFrameB, form.lineEditFpsFrameB, form.lineEditExpFrameB,
                form.lineEditFtmFrameB}}
    , m_temperature(form.lineEditTemperature)
{
    setUnits(form);
}

void InformationBlock::setUnits(const Ui::ZetoCamConfigMainWindow& form)
{
    const QString microseconds = QStringLiteral("%1s").arg(QChar(0x03BC));
    form.lblExpUnit->setText(microseconds);
    form.lblFtmUnit->setText(microseconds);
    form.lblTemperatureUnit->setText(QStringLiteral("%1C").arg(QChar(0x00B0)));
}

void InformationBlock::layOut(bool hasTwoFrames)
{
    for (int i = 0; i < 4; ++i) {
        const int row = i + 1;
        QLineEdit* const editA = m_frameA.edits[i];
        QLineEdit* const editB = m_frameB.edits[i];
        const int narrow = editA->fontMetrics().horizontalAdvance(QStringLiteral("xxxxxxxxxxxx"));
        for (QLineEdit* edit : {editA, editB})
            edit->setMaximumWidth(hasTwoFrames ? narrow : QWIDGETSIZE_MAX);
        m_grid->addWidget(editA, row, 1, 1, hasTwoFrames ? 1 : 2);
        m_grid->addWidget(editB, row, 2);
        editB->setVisible(hasTwoFrames);
    }
    m_frameA.header->setVisible(hasTwoFrames);
    m_frameB.header->setVisible(hasTwoFrames);
}

void InformationBlock::setMode(FrameState::Mode mode)
{
    m_frameA.header->setEnabled(mode != FrameState::OnlyFrameB);
    m_frameB.header->setEnabled(mode != FrameState::OnlyFrameA);
}

void InformationBlock::show(const CameraInformation& information)
{
    m_frameA.show(information.frameA());
    m_frameB.show(information.frameB());
    m_temperature->setText(numberText(information.temperature()));
}

void InformationBlock::clear()
{
    m_frameA.show({});
    m_frameB.show({});
    m_temperature->clear();
}

void InformationBlock::Column::show(const FrameInformation& frame) const
{
    const std::array<QString, 4> texts = {sizeText(frame.width, frame.height), frameRateText(frame.frameTime),
                                          numberText(frame.exposureTime), numberText(frame.frameTime)};
    for (std::size_t i = 0; i < edits.size(); ++i) {
        if (edits[i]->text() != texts[i]) // keeps what a person has marked to copy it
            edits[i]->setText(texts[i]);
    }
}

} // namespace ZetoGui
