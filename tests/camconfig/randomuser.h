#pragma once

#include <ZetoCameraGuiApi/zetocamconfig.h>

#include <QPointer>
#include <QTimer>

#include <memory>
#include <random>
#include <string>

namespace ZetoSimulator {
class SimulatorControl;
}

/// Somebody who does anything that the configuration tool allows, in any order, while its cameras come, go,
/// refuse and stall. The same seed does the same.
class RandomUser : public QObject
{
public:
    explicit RandomUser(unsigned seed);
    ~RandomUser() override;

    void act();

private:
    int upTo(int limit); ///< 0 to limit - 1
    bool isOneIn(int n) { return upTo(n) == 0; }
    template <typename List>
    auto oneOf(const List& list);

    void useWindow();
    void useMenu();
    void useControl();
    void pressKey(QWidget& widget);
    void closeSomething();
    void changeCamera();
    void restart();

    void answer();
    void answerSelector(QDialog& selector);
    QWidgetList openWindows() const;

    std::mt19937 m_random;
    ZetoSimulator::SimulatorControl& m_simulator;
    std::unique_ptr<ZetoGui::ZetoCamConfig> m_tool;
    QTimer m_answering; ///< answers what is modal
};
