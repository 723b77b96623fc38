#include "generrorsdlg.h"

#include "ui_generrorsdlg.h"

#include <QScrollBar>

GenErrorsDlg::GenErrorsDlg(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::GenErrorsDlg>())
{
    m_ui->setupUi(this);
}

GenErrorsDlg::~GenErrorsDlg() = default;

void GenErrorsDlg::setErrors(const QString& errors)
{
    if (errors == m_ui->textErrors->toPlainText())
        return; // keeps what the person has selected
    const int top = m_ui->textErrors->verticalScrollBar()->value();
    m_ui->textErrors->setPlainText(errors);
    m_ui->textErrors->verticalScrollBar()->setValue(top);
}
