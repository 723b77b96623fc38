#include "paramerror.h"

#include <ZetoGenParam.h>

#include <QCoreApplication>
#include <QMessageBox>
#include <QPointer>

namespace ZetoGui {

const char* ErrorCodeToText(int32_t code)
{
    switch (code) {
    case ZetoCam::Success:
        return "OK";
    case ZetoCam::ErrorUnknown:
        return "Unknown error";
    case ZetoCam::ErrorFileNotFound:
        return "File not found";
    case ZetoCam::ErrorFileRead:
        return "File read error";
    case ZetoCam::ErrorWrongConfiguration:
        return "Wrong configuration";
    case ZetoCam::ErrorInvalidIndex:
        return "Invalid index";
    case ZetoCam::ErrorNoDevice:
        return "No device";
    case ZetoCam::ErrorInvalidArgument:
        return "Invalid argument";
    case ZetoCam::ErrorInvalidState:
        return "Invalid state";
    case ZetoCam::ErrorFlashErase:
        return "Flash erase error";
    case ZetoCam::ErrorGenICamGeneric:
        return "GenICam: Generic error";
    case ZetoCam::ErrorGenICamTree:
        return "GenICam: Tree error";
    case ZetoCam::ErrorGenICamAccess:
        return "GenICam: Access error";
    case ZetoCam::ErrorGenICamType:
        return "GenICam: Parameter type is invalid";
    case ZetoCam::ErrorGenICamRange:
        return "GenICam: Parameter is out of range";
    case ZetoCam::ErrorGenICamUnknownParam:
        return "GenICam: Unknown param";
    case ZetoCam::ErrorGenICamInvalidArgument:
        return "GenICam: Invalid argument";
    default:
        return "Unknown code";
    }
}

void ReportParamError(int32_t code, QWidget* parent, ZetoGenParam::Param* param)
{
    if (code == ZetoCam::Success)
        return;
    const QString text =
        QCoreApplication::translate("ZetoCamConfigMapper",
                                    "Error while working with '%1' parameter!\r\nDescription: %2")
            .arg(QString::fromLatin1(param ? param->GetName() : nullptr),
                 QString::fromLatin1(ErrorCodeToText(code)));
    // Not the static QMessageBox::critical(): its box dies with the parent, then again with the stack.
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Critical, QString(), text, QMessageBox::Ok, parent);
    box->setTextFormat(Qt::PlainText);
    box->exec();
    delete box;
}

} // namespace ZetoGui
