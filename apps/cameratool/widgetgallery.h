#pragma once

#include <QWidget>

class QPlainTextEdit;

/// Every value widget in every mode, each beside the value that it tells, and a log of all their signals: for
/// developers who judge or change them.
class WidgetGallery : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetGallery(QWidget* parent = nullptr);

private:
    QWidget* makeSamples();
    QWidget* makeSwitches();
    void note(const QString& sample, const QString& signal);

    QPlainTextEdit* m_log;
    QWidget* m_samples;
};
