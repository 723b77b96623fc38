#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class FilterOptions;
} // namespace Ui

/// How the filter text is compared with names. Opens below a button and closes by Escape or by a click
/// elsewhere.
class FilterOptions : public QDialog
{
    Q_OBJECT

public:
    explicit FilterOptions(QWidget* parent = nullptr);
    ~FilterOptions() override;

    bool isCaseSensitive() const;
    bool isWholeWords() const;

    /// The icon that shows the options in force.
    QIcon icon() const;

    void popup(const QWidget& button);

signals:
    void changed();

private:
    const std::unique_ptr<Ui::FilterOptions> m_ui;
};
