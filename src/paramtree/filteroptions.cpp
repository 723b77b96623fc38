#include "filteroptions.h"

#include "ui_filteroptions.h"

#include <QIcon>

FilterOptions::FilterOptions(QWidget* parent)
    : QDialog(parent, Qt::Popup)
    , m_ui(std::make_unique<Ui::FilterOptions>())
{
    m_ui->setupUi(this);
    connect(m_ui->checkBoxCase, &QCheckBox::toggled, this, &FilterOptions::changed);
    connect(m_ui->checkBoxWhole, &QCheckBox::toggled, this, &FilterOptions::changed);
}

FilterOptions::~FilterOptions() = default;

bool FilterOptions::isCaseSensitive() const
{
    return m_ui->checkBoxCase->isChecked();
}

bool FilterOptions::isWholeWords() const
{
    return m_ui->checkBoxWhole->isChecked();
}

QIcon FilterOptions::icon() const
{
    if (isCaseSensitive() && isWholeWords())
        return QIcon(QStringLiteral("://images//options-cw.png"));
    if (isCaseSensitive())
        return QIcon(QStringLiteral("://images//options-c.png"));
    if (isWholeWords())
        return QIcon(QStringLiteral("://images//options-w.png"));
    return QIcon(QStringLiteral("://images//options.png"));
}

void FilterOptions::popup(const QWidget& button)
{
    move(button.mapToGlobal(button.rect().bottomLeft()));
    show();
}
