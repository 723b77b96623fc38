#pragma once

#include <QDialog>

#include <memory>
#include <vector>

class QLineEdit;

namespace Ui {
class ZetoCamConfigAboutDialog;
}

namespace ZetoGenParam {
class Array;
}

namespace ZetoGui {

class TimeBudget;

/// Tells about this program and the identity of the camera.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent);
    ~AboutDialog() override;

    /// Tells about the camera with \a params from now on; null for none. Nothing is read yet.
    void setCamera(ZetoGenParam::Array* params);

    /// Reads what is not shown yet until \a budget is spent, one value at least.
    void read(const TimeBudget& budget);

private:
    struct Line
    {
        QLineEdit* edit;
        const char* feature;
    };

    void showProgram();
    static void showText(const Line& line, const QString& text);

    const std::unique_ptr<Ui::ZetoCamConfigAboutDialog> m_ui;
    const std::vector<Line> m_lines;
    ZetoGenParam::Array* m_params = nullptr;
    std::size_t m_next = 0; ///< line to be read next
};

} // namespace ZetoGui
