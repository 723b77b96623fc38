#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class GenErrorsDlg;
} // namespace Ui

/// Lists the errors met while reading or writing features. It may stay open beside the browser.
class GenErrorsDlg : public QDialog
{
    Q_OBJECT

public:
    explicit GenErrorsDlg(QWidget* parent = nullptr);
    ~GenErrorsDlg() override;

    /// Shows \a errors as they stand, from the line on that is at the top now.
    void setErrors(const QString& errors);

private:
    const std::unique_ptr<Ui::GenErrorsDlg> m_ui;
};
