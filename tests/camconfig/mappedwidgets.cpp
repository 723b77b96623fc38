#include "mappedwidgets.h"

#include "handsonkeys.h"
#include "nodemapbuilder.h"
#include "qtzetosliderspinbox.h"
#include "qtzetospinbox.h"
#include "qtzetospinboxval.h"
#include "qtzetospinboxval64.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QIntValidator>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include <algorithm>

using ZetoGui::ZetoCamConfigMapper;

SmallCamera::SmallCamera()
    : m_features(makeFeatures())
    , m_innerArray(*m_features)
    , m_array(m_innerArray, m_faults)
{
}

SmallCamera::~SmallCamera() = default;

void SmallCamera::change(const MappedKind& kind)
{
    change(kind, kind.cameraValue);
}

void SmallCamera::change(const MappedKind& kind, int64_t value)
{
    if (m_innerArray.GetCommand(kind.feature, nullptr) == nullptr)
        m_features->assign(kind.feature, value);
}

std::unique_ptr<ZetoNodeMap::NodeMap> SmallCamera::makeFeatures()
{
    const auto judge = [this](ZetoNodeMap::NodeMap&, auto) {
        if (refuses)
            throw OUT_OF_RANGE_EXCEPTION("refused");
    };
    const auto judgeLevel = [this, judge](ZetoNodeMap::NodeMap& map, int64_t value) {
        judge(map, value);
        return value - value % roundsTo;
    };
    ZetoNodeMap::NodeMapBuilder b;
    b.category("Root");
    b.boolean("AutoThere").in("Root").value(true);
    b.enumeration("Mode")
        .in("Root")
        .entry("Off", 0)
        .entry("On", 1)
        .entry(ZetoNodeMap::Entry("Auto", 4).availableIf("AutoThere"))
        .onWrite(judge);
    b.boolean("Switch").in("Root").onWrite(judge);
    b.command("Fire").in("Root").onExecute([judge](ZetoNodeMap::NodeMap& map) { judge(map, 0); });
    b.integer("LevelMin").in("Root").value(0);
    b.integer("LevelMax").in("Root").value(100);
    b.integer("LevelStep").in("Root").value(1);
    b.integer("Level")
        .in("Root")
        .limits("LevelMin", "LevelMax")
        .increment("LevelStep")
        .value(10)
        .onWrite(judgeLevel);
    return b.build();
}

namespace {

template <typename Widget>
QObject* make(QWidget* parent)
{
    return new Widget(parent);
}

QObject* makeGroup(QWidget* parent)
{
    auto* const group = new QButtonGroup(parent);
    for (int i = 0; i < 3; ++i)
        group->addButton(new QRadioButton(parent));
    return group;
}

QObject* makeTabs(QWidget* parent)
{
    auto* const tabs = new QTabWidget(parent);
    for (int i = 0; i < 3; ++i)
        tabs->addTab(new QWidget, QString::number(i));
    return tabs;
}

QObject* makeCheckable(QWidget* parent)
{
    auto* const button = new QPushButton(parent);
    button->setCheckable(true);
    return button;
}

QObject* makeLineEdit(QWidget* parent)
{
    auto* const edit = new QLineEdit(parent);
    edit->setValidator(new QIntValidator(edit));
    return edit;
}

template <typename Widget>
bool mapEnum(ZetoCamConfigMapper& mapper, ZetoGenParam::Array& array, const char* feature, QObject* widget)
{
    return mapper.MapEnum(array.GetEnum(feature, nullptr), qobject_cast<Widget*>(widget));
}

bool mapTabs(ZetoCamConfigMapper& mapper, ZetoGenParam::Array& array, const char* feature, QObject* widget)
{
    const QString name = QString::fromLatin1(feature);
    mapper.TabIndex(name, QStringLiteral("Off")) = 2;
    mapper.TabIndex(name, QStringLiteral("On")) = 1;
    mapper.TabIndex(name, QStringLiteral("Auto")) = 0;
    return mapEnum<QTabWidget>(mapper, array, feature, widget);
}

bool mapCommand(ZetoCamConfigMapper& mapper, ZetoGenParam::Array& array, const char* feature, QObject* widget)
{
    return mapper.MapCommand(array.GetCommand(feature, nullptr), qobject_cast<QAbstractButton*>(widget));
}

bool mapBoolean(ZetoCamConfigMapper& mapper, ZetoGenParam::Array& array, const char* feature, QObject* widget)
{
    return mapper.MapBoolean(array.GetBoolean(feature, nullptr), qobject_cast<QAbstractButton*>(widget));
}

template <typename Widget>
bool mapInt(ZetoCamConfigMapper& mapper, ZetoGenParam::Array& array, const char* feature, QObject* widget)
{
    return mapper.MapInt(array.GetInt(feature, nullptr), qobject_cast<Widget*>(widget));
}

template <typename Widget>
QString number(const QObject* widget)
{
    return QString::number(qobject_cast<const Widget*>(widget)->value());
}

QString checked(const QObject* widget)
{
    return QString::number(qobject_cast<const QAbstractButton*>(widget)->isChecked());
}

template <int key>
void press(QObject* widget)
{
    QTest::keyClick(qobject_cast<QWidget*>(widget), Qt::Key(key));
}

template <typename Composite, int key>
void pressInside(QObject* widget)
{
    QTest::keyClick(qobject_cast<Composite*>(widget)->spinBox(), Qt::Key(key));
}

void typeNumber(QWidget* field)
{
    QTest::keySequence(field, QKeySequence::SelectAll);
    typeText(field, QStringLiteral("42"));
    QTest::keyClick(field, Qt::Key_Return);
}

} // namespace

const std::vector<MappedKind>& mappedKinds()
{
    static const std::vector<MappedKind> kinds = {
        {"combo box", "Mode", make<QComboBox>, mapEnum<QComboBox>,
         [](const QObject* widget) { return qobject_cast<const QComboBox*>(widget)->currentText(); },
         press<Qt::Key_Down>, "Off", "Mode=On", "On", 4, "Auto"},
        {"check box", "Mode", make<QCheckBox>, mapEnum<QCheckBox>, checked, press<Qt::Key_Space>, "0",
         "Mode=On", "1", 4, "1"},
        {"button group", "Mode", makeGroup, mapEnum<QButtonGroup>,
         [](const QObject* widget) {
             const auto* const group = qobject_cast<const QButtonGroup*>(widget);
             return QString::number(group->buttons().indexOf(group->checkedButton()));
         },
         [](QObject* widget) { qobject_cast<QButtonGroup*>(widget)->buttons()[1]->click(); }, "0", "Mode=On",
         "1", 4, "2"},
        {"tab widget", "Mode", makeTabs, mapTabs,
         [](const QObject* widget) {
             return QString::number(qobject_cast<const QTabWidget*>(widget)->currentIndex());
         },
         [](QObject* widget) { QTest::keyClick(qobject_cast<QTabWidget*>(widget)->tabBar(), Qt::Key_Left); },
         "2", "Mode=On", "1", 4, "0"},
        {"command", "Fire", make<QPushButton>, mapCommand, [](const QObject*) { return QString(); },
         press<Qt::Key_Space>, "", "Fire()", "", 0, ""},
        {"boolean", "Switch", makeCheckable, mapBoolean, checked, press<Qt::Key_Space>, "0", "Switch=1", "1",
         1, "1"},
        {"line edit", "Level", makeLineEdit, mapInt<QLineEdit>,
         [](const QObject* widget) { return qobject_cast<const QLineEdit*>(widget)->text(); },
         [](QObject* widget) { typeNumber(qobject_cast<QWidget*>(widget)); }, "10", "Level=42", "42", 77,
         "77"},
        {"spin box", "Level", make<QSpinBox>, mapInt<QSpinBox>, number<QSpinBox>, press<Qt::Key_Up>, "10",
         "Level=11", "11", 77, "77"},
        {"popup spin box", "Level", make<QtZetoSpinBox>, mapInt<QtZetoSpinBox>, number<QtZetoSpinBox>,
         [](QObject* widget) { typeNumber(qobject_cast<QtZetoSpinBox*>(widget)->spinBox()); }, "10",
         "Level=42", "42", 77, "77"},
        {"slider", "Level", make<QSlider>, mapInt<QSlider>, number<QSlider>, press<Qt::Key_Up>, "10",
         "Level=11", "11", 77, "77"},
        {"slider and spin box", "Level", make<QtZetoSliderSpinBox>, mapInt<QtZetoSliderSpinBox>,
         number<QtZetoSliderSpinBox>, pressInside<QtZetoSliderSpinBox, Qt::Key_Up>, "10", "Level=11", "11",
         77, "77"},
    };
    return kinds;
}

bool isEnabled(const QObject* widget)
{
    if (const auto* const group = qobject_cast<const QButtonGroup*>(widget)) {
        const QList<QAbstractButton*> buttons = group->buttons();
        return std::all_of(buttons.begin(), buttons.end(), [](auto* button) { return button->isEnabled(); });
    }
    return qobject_cast<const QWidget*>(widget)->isEnabled();
}
