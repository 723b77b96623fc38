#include "intview.h"
#include "izetocamconfigintconverter.h"
#include "mappedwidgets.h"
#include "messageboxes.h"
#include "paramerror.h"
#include "qtzetosliderspinbox.h"
#include "qtzetospinbox.h"

#include "testmain.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

#include <atomic>
#include <limits>
#include <thread>

using ZetoGui::ZetoCamConfigMapper;

/// A bound widget shows what the camera holds and writes what a person or the dialog does, and nothing else.
class TestZetoCamConfigMapper : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void writes_edits_once_and_follows_the_camera_data() { addKinds(); }
    void writes_edits_once_and_follows_the_camera();
    void reports_a_refusal_once_data() { addKinds(); }
    void reports_a_refusal_once();
    void disables_what_is_not_there_data() { addKinds(); }
    void disables_what_is_not_there();
    void binds_anew_data() { addKinds(); }
    void binds_anew();
    void lets_go_data() { addKinds(); }
    void lets_go();
    void outlives_its_widgets_data() { addKinds(); }
    void outlives_its_widgets();
    void survives_any_fault_data() { addKinds(); }
    void survives_any_fault();

    void shows_numbers();
    void converts_numbers();
    void shows_limits_that_move_without_writing_data() { addKinds("Level"); }
    void shows_limits_that_move_without_writing();
    void shows_what_the_camera_made_of_a_write_data() { addKinds("Level"); }
    void shows_what_the_camera_made_of_a_write();
    void runs_rules_on_a_refresh_but_writes_none_of_it();
    void writes_what_the_dialog_sets();
    void enables_what_camera_and_rule_allow();
    void shows_entries_that_come_and_go();
    void leaves_ids_that_the_dialog_gave();
    void takes_the_first_tab_for_an_entry_without_one();
    void enables_companions_with_the_feature();
    void leaves_Qt_its_own_connections();
    void names_errors();
    void survives_the_end_of_the_dialog_in_an_error_box();
    void takes_changes_of_other_threads();
    void binds_and_lets_go_while_another_thread_writes();

private:
    void addKinds(const char* feature = nullptr);
    static const MappedKind& kind();

    bool map(const MappedKind& kind, QObject* widget)
    {
        return kind.map(*m_mapper, m_camera->array(), kind.feature, widget);
    }
    /// A new widget of the dialog, bound.
    QObject* mapped(const MappedKind& kind);
    template <typename Widget>
    Widget* mappedInt();
    ZetoGenParam::Int* level() { return m_camera->array().GetInt("Level", nullptr); }
    ZetoGenParam::Enum* mode() { return m_camera->array().GetEnum("Mode", nullptr); }
    ZetoGenParam::Boolean* switchFeature() { return m_camera->array().GetBoolean("Switch", nullptr); }
    ZetoNodeMap::NodeMap& features() { return m_camera->features(); }
    QStringList takeWrites() { return m_camera->faults().takeWrites(); }

    std::unique_ptr<SmallCamera> m_camera;
    std::unique_ptr<QDialog> m_dialog;
    std::unique_ptr<ZetoCamConfigMapper> m_mapper;
    std::unique_ptr<MessageBoxes> m_boxes;
};

void TestZetoCamConfigMapper::init()
{
    m_camera = std::make_unique<SmallCamera>();
    m_dialog = std::make_unique<QDialog>();
    m_mapper = std::make_unique<ZetoCamConfigMapper>();
    m_boxes = std::make_unique<MessageBoxes>();
}

void TestZetoCamConfigMapper::cleanup()
{
    const QStringList boxes = m_boxes->take();
    m_boxes.reset();
    if (m_mapper)
        m_mapper->Clear(&m_camera->array());
    m_mapper.reset();
    m_dialog.reset();
    m_camera.reset();
    QCOMPARE(boxes, QStringList());
}

void TestZetoCamConfigMapper::addKinds(const char* feature)
{
    QTest::addColumn<int>("index");
    const std::vector<MappedKind>& kinds = mappedKinds();
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        if (!feature || qstrcmp(feature, kinds[i].feature) == 0)
            QTest::newRow(kinds[i].name) << int(i);
    }
}

const MappedKind& TestZetoCamConfigMapper::kind()
{
    QFETCH(int, index);
    return mappedKinds()[std::size_t(index)];
}

QObject* TestZetoCamConfigMapper::mapped(const MappedKind& kind)
{
    QObject* const widget = kind.make(m_dialog.get());
    map(kind, widget);
    m_dialog->show();
    return widget;
}

template <typename Widget>
Widget* TestZetoCamConfigMapper::mappedInt()
{
    auto* const widget = new Widget(m_dialog.get());
    m_mapper->MapInt(level(), widget);
    m_dialog->show();
    return widget;
}

void TestZetoCamConfigMapper::writes_edits_once_and_follows_the_camera()
{
    QObject* const widget = mapped(kind());
    QCOMPARE(kind().shown(widget), kind().atFirst);
    QVERIFY(isEnabled(widget));
    kind().edit(widget);
    QCOMPARE(takeWrites(), QStringList(kind().written));
    QCOMPARE(kind().shown(widget), kind().afterEdit);
    m_camera->change(kind());
    QCOMPARE(kind().shown(widget), kind().afterChange);
    QCOMPARE(takeWrites(), QStringList());
}

void TestZetoCamConfigMapper::reports_a_refusal_once()
{
    QObject* const widget = mapped(kind());
    QObject* parent = nullptr;
    QString title = QStringLiteral("none");
    m_boxes->onBox = [&](QMessageBox& box) {
        parent = box.parent();
        title = box.windowTitle();
    };
    m_camera->refuses = true;
    kind().edit(widget);
    QCOMPARE(m_boxes->take(), QStringList(QStringLiteral("Error while working with '%1' parameter!\r\n"
                                                         "Description: GenICam: Parameter is out of range")
                                              .arg(QLatin1String(kind().feature))));
    QCOMPARE(parent, m_dialog.get());
    QCOMPARE(title, QString());
    QCOMPARE(kind().shown(widget), kind().afterEdit); // until the camera tells better
    QCOMPARE(takeWrites().size(), 1);
}

void TestZetoCamConfigMapper::disables_what_is_not_there()
{
    QObject* const lacking = kind().make(m_dialog.get());
    QVERIFY(!kind().map(*m_mapper, m_camera->array(), "Nothing", lacking));
    QVERIFY(!isEnabled(lacking));

    QObject* const widget = mapped(kind());
    features().setAccessMode(kind().feature, GenApi::NA);
    QVERIFY(!isEnabled(widget));
    features().setAccessMode(kind().feature, GenApi::RW);
    QVERIFY(isEnabled(widget));
    features().setAccessMode(kind().feature, GenApi::RO);
    QVERIFY(!isEnabled(widget));
    m_camera->change(kind());
    QCOMPARE(kind().shown(widget), kind().afterChange);
    QVERIFY(!isEnabled(widget));

    QVERIFY(!kind().map(*m_mapper, m_camera->array(), "Nothing", widget)); // nor shows what was
    QCOMPARE(kind().shown(widget), kind().shown(lacking));
    QVERIFY(!isEnabled(widget));
    QCOMPARE(takeWrites(), QStringList());
}

void TestZetoCamConfigMapper::binds_anew()
{
    QObject* const first = mapped(kind());
    QObject* const second = mapped(kind());
    QVERIFY(!isEnabled(first));
    QVERIFY(isEnabled(second));
    kind().edit(second);
    QCOMPARE(takeWrites(), QStringList(kind().written));
    QCOMPARE(kind().shown(first), kind().atFirst);

    QVERIFY(map(kind(), second)); // once more the same
    QVERIFY(isEnabled(second));
    QCOMPARE(kind().shown(second), kind().afterEdit);
    m_camera->change(kind());
    QCOMPARE(kind().shown(second), kind().afterChange);
    QCOMPARE(takeWrites(), QStringList());
}

void TestZetoCamConfigMapper::lets_go()
{
    QObject* const widget = mapped(kind());
    m_mapper->Clear(&m_camera->array());
    QVERIFY(!isEnabled(widget));
    m_camera->change(kind());
    QCOMPARE(kind().shown(widget), kind().atFirst);
    QVERIFY(!isEnabled(widget));
    const QList<QWidget*> widgets = m_dialog->findChildren<QWidget*>();
    for (QWidget* const each : widgets)
        each->setEnabled(true);
    kind().edit(widget);
    QCOMPARE(takeWrites(), QStringList());

    map(kind(), widget);
    m_mapper.reset(); // without a word
    kind().edit(widget);
    QCOMPARE(takeWrites(), QStringList());
}

void TestZetoCamConfigMapper::outlives_its_widgets()
{
    mapped(kind());
    m_dialog.reset();
    m_camera->change(kind());
    features().setAccessMode(kind().feature, GenApi::NA);
    features().setAccessMode(kind().feature, GenApi::RW);
    QCOMPARE(takeWrites(), QStringList());
}

/// Whatever call fails while a widget is bound, changed, edited and let go, there is at most one message box,
/// and the next binding works.
void TestZetoCamConfigMapper::survives_any_fault()
{
    QObject* const widget = mapped(kind());
    const auto use = [&] {
        map(kind(), widget);
        features().setAccessMode(kind().feature, GenApi::NA);
        features().setAccessMode(kind().feature, GenApi::RW);
        m_camera->change(kind());
        kind().edit(widget);
        m_mapper->Clear(&m_camera->array());
    };
    m_camera->faults().stop();
    use();
    const int calls = m_camera->faults().calls();
    QVERIFY(calls > 20);
    for (const int code : {0, -40001, -40002, -40003, -40004, -40005, -40006, -40007, -40051, -40101, -40200,
                           -40201, -40202, -40203, -40204, -40205, -40206, -1}) {
        for (int call = 0; call < calls; ++call) {
            m_camera->faults().failAt(call, code);
            use();
            QVERIFY(m_boxes->take().size() <= 1);
        }
    }
    m_camera->faults().stop();
    m_camera->change(kind(), 0);
    takeWrites();
    map(kind(), widget);
    QVERIFY(isEnabled(widget));
    kind().edit(widget);
    QVERIFY(!takeWrites().isEmpty());
}

void TestZetoCamConfigMapper::shows_numbers()
{
    const auto* const box = mappedInt<QSpinBox>();
    const auto shown = [&](int64_t least, int64_t most, int64_t increment, int64_t value) {
        features().assign("LevelMin", least);
        features().assign("LevelMax", most);
        features().assign("LevelStep", increment);
        features().assign("Level", value);
        return QStringLiteral("%1..%2/%3 %4")
            .arg(box->minimum())
            .arg(box->maximum())
            .arg(box->singleStep())
            .arg(box->value());
    };
    QCOMPARE(shown(-5, 100, 3, 7), "-5..100/3 7");
    QCOMPARE(shown(0, 5'000'000'000, 1, 4'000'000'000), "0..2147483647/1 2147483647");
    QCOMPARE(shown(0, 10, 0, 4), "0..10/1 4");
    QCOMPARE(shown(0, 10, 1LL << 32, 4), "0..10/1 4");
    QCOMPARE(shown(-4'294'967'297, 10, 1, 4), "-1..10/1 4"); // without its upper bits
    QCOMPARE(shown(std::numeric_limits<int64_t>::min(), std::numeric_limits<int64_t>::max(), 1, 4),
             "0..2147483647/1 4");
    QCOMPARE(takeWrites(), QStringList());
}

void TestZetoCamConfigMapper::converts_numbers()
{
    struct Tens : ZetoGui::IZetoCamConfigIntConverter
    {
        int64_t ToWidget(int64_t value, ZetoGenParam::Int*) override { return value * 10; }
        int64_t FromWidget(int64_t value, ZetoGenParam::Int*) override { return value / 10; }
    } tens;
    QtZetoSliderSpinBox box(m_dialog.get());
    QVERIFY(m_mapper->MapInt(level(), &box, &tens));
    QCOMPARE(box.value(), 100);
    QCOMPARE(box.maximum(), 1000);
    QCOMPARE(box.singleStep(), 10);
    box.setValue(250);
    QCOMPARE(takeWrites(), QStringList("Level=25"));
}

/// Also when that clamps what the widget shows.
void TestZetoCamConfigMapper::shows_limits_that_move_without_writing()
{
    QObject* const widget = mapped(kind());
    for (const auto& [limit, value] :
         {std::pair("LevelMax", 3), {"LevelMin", 2}, {"LevelMax", 50}, {"LevelStep", 7}})
        features().assign(limit, int64_t(value));
    QCOMPARE(takeWrites(), QStringList());
    features().assign("Level", int64_t(44));
    QCOMPARE(kind().shown(widget), QStringLiteral("44"));
    features().assign("Level", int64_t(60)); // beyond its own limit
    QVERIFY(kind().shown(widget) != QStringLiteral("44"));
    QCOMPARE(takeWrites(), QStringList());
}

/// The camera answers in the middle of the write.
void TestZetoCamConfigMapper::shows_what_the_camera_made_of_a_write()
{
    QObject* const widget = mapped(kind());
    m_camera->roundsTo = 8;
    kind().edit(widget);
    QCOMPARE(takeWrites(), QStringList(kind().written));
    const int taken = QString::fromLatin1(kind().afterEdit).toInt() / 8 * 8;
    QCOMPARE(kind().shown(widget), QString::number(taken));
}

void TestZetoCamConfigMapper::runs_rules_on_a_refresh_but_writes_none_of_it()
{
    auto* const box = mappedInt<QSpinBox>();
    auto* const checkBox = new QCheckBox(m_dialog.get());
    m_mapper->MapBoolean(switchFeature(), checkBox);
    QStringList told;
    connect(box, qOverload<int>(&QSpinBox::valueChanged), this, [&](int value) {
        told.append(QString::number(value));
        checkBox->setChecked(value > 50);
    });
    features().assign("Level", int64_t(60));
    QCOMPARE(told, QStringList("60"));
    QVERIFY(checkBox->isChecked());
    QCOMPARE(takeWrites(), QStringList());
}

void TestZetoCamConfigMapper::writes_what_the_dialog_sets()
{
    mappedInt<QtZetoSpinBox>()->setValue(30);
    QCOMPARE(takeWrites(), QStringList("Level=30"));
    mappedInt<QLineEdit>()->setText(QStringLiteral("31"));
    QCOMPARE(takeWrites(), QStringList("Level=31"));
    auto* const button = new QCheckBox(m_dialog.get());
    m_mapper->MapBoolean(switchFeature(), button);
    button->setChecked(true);
    QCOMPARE(takeWrites(), QStringList("Switch=1"));
}

void TestZetoCamConfigMapper::enables_what_camera_and_rule_allow()
{
    auto* const box = mappedInt<QSpinBox>();
    m_mapper->SetAllowed(box, false);
    QVERIFY(!box->isEnabled());
    features().assign("Level", int64_t(5));
    QVERIFY(!box->isEnabled());
    features().setAccessMode("Level", GenApi::NA);
    m_mapper->SetAllowed(box, true);
    QVERIFY(!box->isEnabled());
    features().setAccessMode("Level", GenApi::RW);
    QVERIFY(box->isEnabled());

    m_mapper->MapInt(nullptr, box);
    m_mapper->SetAllowed(box, true);
    QVERIFY(!box->isEnabled());
}

void TestZetoCamConfigMapper::shows_entries_that_come_and_go()
{
    QWidget page;
    const auto& kinds = mappedKinds();
    for (const int there : {1, 0, 1}) {
        auto* const combo = qobject_cast<QComboBox*>(mapped(kinds[0]));
        features().assign("AutoThere", bool(there));
        const auto flags = combo->model()->flags(combo->model()->index(2, 0));
        QCOMPARE(int(flags.testFlag(Qt::ItemIsEnabled)), there);
        auto* const group = qobject_cast<QButtonGroup*>(mapped(kinds[2]));
        QCOMPARE(int(group->button(4)->isEnabled()), there);
        features().assign("Mode", std::string("On"));
        QCOMPARE(int(group->button(4)->isEnabled()), there);
        auto* const tabs = qobject_cast<QTabWidget*>(mapped(kinds[3]));
        QCOMPARE(int(tabs->isTabEnabled(0)), there);
    }
}

void TestZetoCamConfigMapper::leaves_ids_that_the_dialog_gave()
{
    QButtonGroup group;
    for (const int id : {4, 0, 1})
        group.addButton(new QRadioButton(m_dialog.get()), id);
    m_mapper->MapEnum(mode(), &group);
    QCOMPARE(group.checkedId(), 0);
    group.buttons()[0]->click();
    QCOMPARE(takeWrites(), QStringList("Mode=Auto"));
    m_mapper->Clear(&m_camera->array());
    QCOMPARE(group.id(group.buttons()[0]), 4);

    group.removeButton(group.buttons()[0]); // none for the camera's value
    group.button(1)->setChecked(true);
    m_mapper->MapEnum(m_camera->array().GetEnum("Mode", nullptr), &group);
    QCOMPARE(group.checkedId(), -1);
    m_mapper->Clear(&m_camera->array());
}

void TestZetoCamConfigMapper::takes_the_first_tab_for_an_entry_without_one()
{
    QTabWidget tabs(m_dialog.get());
    for (int i = 0; i < 3; ++i)
        tabs.addTab(new QWidget, QString());
    m_mapper->TabIndex(QStringLiteral("Mode"), QStringLiteral("On")) = 2;
    m_mapper->TabIndex(QStringLiteral("Mode"), QStringLiteral("Auto")) = 0;
    features().assign("Mode", std::string("On"));
    m_mapper->MapEnum(mode(), &tabs);
    QCOMPARE(tabs.currentIndex(), 2);
    features().assign("Mode", std::string("Off"));
    QCOMPARE(tabs.currentIndex(), 0);
    tabs.setCurrentIndex(1); // no entry stands for it
    QCOMPARE(takeWrites(), QStringList());
    tabs.setCurrentIndex(0);
    QCOMPARE(takeWrites(), QStringList("Mode=Auto"));
}

void TestZetoCamConfigMapper::enables_companions_with_the_feature()
{
    QWidget first(m_dialog.get());
    QWidget second(m_dialog.get());
    QtZetoSpinBox box(m_dialog.get());
    QVector<QWidget*> companions = {&first, &second};
    QVERIFY(!m_mapper->MapInt(nullptr, &box, companions));
    QVERIFY(!first.isEnabled() && !second.isEnabled());
    QVERIFY(m_mapper->MapInt(level(), &box, companions));
    QVERIFY(first.isEnabled() && second.isEnabled());
    features().setAccessMode("Level", GenApi::RO);
    QVERIFY(!first.isEnabled() && !second.isEnabled());
}

/// Qt watches the end of widgets by their destroyed().
void TestZetoCamConfigMapper::leaves_Qt_its_own_connections()
{
    auto box = std::make_unique<QSpinBox>();
    bool changed = false;
    bool destroyed = false;
    connect(box.get(), qOverload<int>(&QSpinBox::valueChanged), this, [&] { changed = true; });
    connect(box.get(), &QObject::destroyed, this, [&] { destroyed = true; });
    m_mapper->MapInt(level(), box.get());
    box->setValue(50);
    QVERIFY(!changed);
    box.reset();
    QVERIFY(destroyed);
}

void TestZetoCamConfigMapper::names_errors()
{
    QCOMPARE(ZetoGui::ErrorCodeToText(-40204), "GenICam: Parameter is out of range");
    QCOMPARE(ZetoGui::ErrorCodeToText(-40051), "Invalid state");
    QCOMPARE(ZetoGui::ErrorCodeToText(-40008), "Unknown code");
    QCOMPARE(ZetoGui::ErrorCodeToText(0), "OK");
    ZetoGui::ReportParamError(0, m_dialog.get(), nullptr);
}

void TestZetoCamConfigMapper::survives_the_end_of_the_dialog_in_an_error_box()
{
    auto* const button = new QPushButton(m_dialog.get());
    m_mapper->MapCommand(m_camera->array().GetCommand("Fire", nullptr), button);
    m_boxes->onBox = [this](QMessageBox&) {
        m_mapper->Clear(&m_camera->array());
        m_mapper.reset();
        m_dialog.reset();
    };
    m_camera->refuses = true;
    button->click();
    QCOMPARE(m_boxes->take().size(), 1);
    QVERIFY(!m_dialog);
}

void TestZetoCamConfigMapper::takes_changes_of_other_threads()
{
    auto* const box = mappedInt<QSpinBox>();
    const auto changeOnOtherThread = [this](int64_t value) {
        std::thread([this, value] { features().assign("Level", value); }).join();
    };
    changeOnOtherThread(20);
    changeOnOtherThread(30);
    QCOMPARE(box->value(), 10);
    QTRY_COMPARE(box->value(), 30);

    changeOnOtherThread(40);
    m_mapper->Clear(&m_camera->array());
    m_camera->faults().stop();
    QCoreApplication::processEvents();
    QCOMPARE(box->value(), 30);
    QCOMPARE(m_camera->faults().calls(), 0); // the camera may be gone by now
}

void TestZetoCamConfigMapper::binds_and_lets_go_while_another_thread_writes()
{
    std::atomic<bool> stop = false;
    std::thread writer([&] {
        for (int64_t value = 0; !stop; value = (value + 1) % 100)
            features().assign("Level", value);
    });
    QSpinBox box(m_dialog.get());
    for (int round = 0; round < 200; ++round) {
        m_mapper->MapInt(level(), &box);
        QCoreApplication::processEvents();
        m_mapper->Clear(&m_camera->array());
    }
    m_mapper->MapInt(level(), &box);
    stop = true;
    writer.join();
    QCoreApplication::processEvents();
    QCOMPARE(int64_t(box.value()), features().integer("Level"));
    QCOMPARE(takeWrites(), QStringList());
}

ZETO_TEST_MAIN(TestZetoCamConfigMapper)

#include "tst_zetocamconfigmapper.moc"
