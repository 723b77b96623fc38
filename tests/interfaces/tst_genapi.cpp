#include "genapiversion.h"
#include "nodemapbuilder.h"

#include "testmain.h"

#include <GenApi/EnumClasses.h>
#include <GenICam.h>

#include <QtTest>

#include <algorithm>
#include <functional>
#include <sstream>
#include <thread>

using GenICam::gcstring;
using GenICam::gcstring_vector;

namespace {

/// Whether \a call can be called with arguments of these types, that is, whether its expression compiles.
template <class... Arguments, class Call>
constexpr bool compiles(const Call&)
{
    return std::is_invocable_v<Call, Arguments...>;
}

#define EXPRESSION_OF_A(...) [](auto&& a) -> decltype(void(__VA_ARGS__)) { (void)a; }
#define EXPRESSION_OF_A_B(...)                                                                               \
    [](auto&& a, auto&& b) -> decltype(void(__VA_ARGS__)) {                                                  \
        (void)a;                                                                                             \
        (void)b;                                                                                             \
    }

using Pointer = GenApi::CIntegerPtr&;
using Text = const gcstring&;

// What does not compile with an SDK must not compile here, each beside its like that does.
static_assert(compiles<Pointer, Pointer>(EXPRESSION_OF_A_B(a == b)));
static_assert(!compiles<Pointer, Pointer>(EXPRESSION_OF_A_B(a != b)));
static_assert(compiles<Pointer>(EXPRESSION_OF_A(a == nullptr)));
static_assert(compiles<Pointer>(EXPRESSION_OF_A(a == 0)));
#ifdef __GNUC__
static_assert(!compiles<Pointer>(EXPRESSION_OF_A(a == NULL)));
#endif
static_assert(compiles<Pointer, GenApi::IInteger*>(EXPRESSION_OF_A_B(a = b)));
static_assert(!compiles<Pointer, GenApi::IInteger*>(EXPRESSION_OF_A_B((a = b).IsValid())) ||
              ZETO_GENAPI_VERSION >= 304);

static_assert(compiles<Text>(EXPRESSION_OF_A(a.c_str()[0])));
static_assert(!compiles<Text>(EXPRESSION_OF_A(a.begin())));
static_assert(!compiles<Text>(EXPRESSION_OF_A(a.at(0))));
static_assert(!compiles<gcstring&>(EXPRESSION_OF_A(a.clear())));
static_assert(!compiles<gcstring&>(EXPRESSION_OF_A(a.push_back('x'))));
static_assert(!compiles<gcstring&>(EXPRESSION_OF_A(a.erase(0))) || ZETO_GENAPI_VERSION >= 304);
static_assert(std::is_convertible_v<const char*, gcstring>);
static_assert(!std::is_convertible_v<std::string, gcstring>);
static_assert(std::is_constructible_v<std::string, Text>);
static_assert(!std::is_convertible_v<gcstring, std::string>);

static_assert(!std::is_base_of_v<std::exception, GenICam::GenericException>);
static_assert(!std::is_polymorphic_v<GenApi::CLock> && !std::is_copy_constructible_v<GenApi::CLock>);
static_assert(!std::has_virtual_destructor_v<GenApi::INodeMap>);
static_assert(!compiles<GenApi::IBase*>(EXPRESSION_OF_A(static_cast<GenApi::IInteger*>(a))));

static_assert(compiles<gcstring_vector&>(EXPRESSION_OF_A(a.begin()->c_str())));
static_assert(
    !std::is_constructible_v<std::vector<gcstring>, gcstring_vector::iterator, gcstring_vector::iterator>);
static_assert(std::is_constructible_v<std::vector<GenApi::INode*>, GenApi::NodeList_t::iterator,
                                      GenApi::NodeList_t::iterator>);
static_assert(!compiles<GenApi::NodeList_t&>(EXPRESSION_OF_A(a.begin().operator->())));
static_assert(compiles<GenApi::NodeList_t&>(EXPRESSION_OF_A(a.resize(1))));
static_assert(!compiles<GenApi::FeatureList_t&>(EXPRESSION_OF_A(a.resize(1))));
static_assert(!compiles<GenApi::int64_autovector_t&>(EXPRESSION_OF_A(a = {})));
static_assert(!compiles<GenApi::int64_autovector_t&>(EXPRESSION_OF_A(a.begin())));

template <class Call>
QString thrownBy(Call call)
{
#define RETURN_NAME_IF_CAUGHT(Name)                                                                          \
    catch (const GenICam::Name&)                                                                             \
    {                                                                                                        \
        return QStringLiteral(#Name);                                                                        \
    }
    try {
        call();
    }
    RETURN_NAME_IF_CAUGHT(LogicalErrorException)
    RETURN_NAME_IF_CAUGHT(OutOfRangeException)
    RETURN_NAME_IF_CAUGHT(BadAllocException)
    RETURN_NAME_IF_CAUGHT(GenericException)
    return QString();
#undef RETURN_NAME_IF_CAUGHT
}

/// One node of each kind, named by its type.
std::unique_ptr<ZetoNodeMap::NodeMap> nodeOfEachKind()
{
    ZetoNodeMap::NodeMapBuilder b;
    b.category("Root").contains("Float", "Enumeration");
    b.integer("Integer").validValues({0, 8, GC_INT64_MAX});
    b.floating("Float").castAlias("Integer");
    b.boolean("Boolean");
    b.command("Command");
    b.string("String");
    b.bytes("Register");
    b.enumeration("Enumeration").entries({"Off", "On"});
    b.port("Port");
    return b.build();
}

/// Whether another thread can take the lock.
bool isFreeForOthers(GenApi::CLock& lock)
{
    bool taken = false;
    std::thread([&] {
        taken = lock.TryLock();
        if (taken)
            lock.Unlock();
    }).join();
    return taken;
}

/// Counts the calls of its members, which are callbacks.
class Listener
{
public:
    void changed(GenApi::INode*) { ++calls; }
    int calls = 0;
};

class DerivedListener : public Listener
{
};

int functionCalls = 0;

int countCall(GenApi::INode*)
{
    return ++functionCalls;
}

} // namespace

class TestGenApi : public QObject
{
    Q_OBJECT

private slots:
    void textKeepsBytes();
    void textFinds_data();
    void textFinds();
    void textComparesAndConcatenates();
    void textGoesThroughStreams();
    void stringVectorEdits();
    void nodeVectorWorksWithAlgorithms();
    void autovectorsShareTheirElements();
    void lockIsRecursive();
    void lockableObjectHoldsItsLock();
    void exceptionTellsWhatAndWhere();
    void reporterTakesAllForms();
    void integralCastRefusesWhatDoesNotFit();
    void accessModesCombine();
    void visibilityAndCachingCombine();
    void helpersAskTheNode();
    void enumerationsConvertToText();
    void nullPointerThrowsWhenUsed();
    void pointersCastAcrossInterfaces();
    void interfaceNamesFollowTheType();
    void everyInterfaceReadsAndWrites();
    void callablesOfAllKindsAreCalled();
    void callbackTestsItsPhase();
};

void TestGenApi::textKeepsBytes()
{
    QCOMPARE(gcstring("abc", 2).c_str(), "ab");
    QCOMPARE(gcstring(3, 'x').c_str(), "xxx");
    QVERIFY(gcstring(static_cast<const char*>(nullptr)).empty());

    const gcstring withZero("a\0b", 3);
    gcstring copy = withZero;
    copy.resize(3);
    QCOMPARE(copy.size(), size_t(3));
    QVERIFY(copy == withZero);
    QVERIFY(copy != "a");

    const std::string large(100000, 'y');
    gcstring text;
    text.assign(large.data(), large.size());
    text = *&text;
    QCOMPARE(std::string(text), large);
    text.resize(2);
    QCOMPARE(text.c_str(), "yy");
    const std::unique_ptr<gcstring> onHeap(new gcstring("heap"));
    onHeap->swap(text);
    QCOMPARE(text.c_str(), "heap");
    QCOMPARE(text[0], 'h');
}

void TestGenApi::textFinds_data()
{
    QTest::addColumn<quint64>("found");
    QTest::addColumn<quint64>("expected");
    const gcstring text("one two one");
    const auto row = [](const char* name, size_t found, size_t expected) {
        QTest::newRow(name) << quint64(found) << quint64(expected);
    };
    row("character", text.find('n'), 1);
    row("character after offset", text.find('n', 2), 9);
    row("text", text.find(gcstring("one"), 1), 8);
    row("first bytes of a text", text.find(gcstring("twins"), 0, 2), 4);
    row("pointer", text.find("two"), 4);
    row("first bytes of a pointer", text.find("owner", 0, 2), GCSTRING_NPOS);
    row("nothing", text.find("three"), GCSTRING_NPOS);
    row("any of", text.find_first_of("wt"), 4);
    row("none of", text.find_first_not_of("eno"), 3);
    row("no position", gcstring::_npos(), gcstring::npos);
}

void TestGenApi::textFinds()
{
    QFETCH(quint64, found);
    QFETCH(quint64, expected);
    QCOMPARE(found, expected);
}

void TestGenApi::textComparesAndConcatenates()
{
    const gcstring a("a");
    gcstring b("b");
    QVERIFY(a < b && b > a && a.compare(b) < 0 && !(a == b));
    QCOMPARE((a + b + "c" + gcstring()).c_str(), "abc");
    QCOMPARE(("x" + a).c_str(), "xa");
    b += 'c';
    b += "d";
    b += b;
    QCOMPARE(b.append(2, '.').c_str(), "bcdbcd..");
    QCOMPARE(b.substr(1, 2).c_str(), "cd");
    QCOMPARE(b.substr(6).c_str(), "..");
    QCOMPARE(thrownBy([&] { (void)b.substr(9); }), QStringLiteral("OutOfRangeException"));
    QCOMPARE(a.c_str(), "a");
}

void TestGenApi::textGoesThroughStreams()
{
    std::istringstream in("first line\nword rest;end");
    gcstring line;
    gcstring word;
    gcstring rest;
    GenICam::getline(in, line);
    in >> word;
    GenICam::getline(in, rest, ';');
    std::ostringstream out;
    out << line << '|' << word << '|' << rest;
    QCOMPARE(out.str(), std::string("first line|word| rest"));
}

void TestGenApi::stringVectorEdits()
{
    gcstring_vector list(2, "x");
    list.push_back("end");
    list.insert(size_t(0), "start");
    list.erase(size_t(1));
    *list.insert(list.begin() + 1, "") += "mid";
    QCOMPARE(list.erase(list.begin() + 2)->c_str(), "end");
    gcstring joined;
    for (const gcstring& text : list)
        joined += text + ",";
    QCOMPARE(joined.c_str(), "start,mid,end,");

    gcstring_vector copy;
    copy.assign(list);
    copy.resize(4, "more");
    copy.front() = "changed";
    QCOMPARE(list.at(0).c_str(), "start");
    QCOMPARE(copy.back().c_str(), "more");
    QCOMPARE(thrownBy([&] { (void)copy.at(4); }), QStringLiteral("OutOfRangeException"));
    copy.clear();
    QVERIFY(copy.empty() && copy.begin() == copy.end());
}

void TestGenApi::nodeVectorWorksWithAlgorithms()
{
    const auto map = nodeOfEachKind();
    GenApi::INode* const a = map->GetNode("Integer");
    GenApi::INode* const b = map->GetNode("Port");
    GenApi::NodeList_t nodes(1);
    QVERIFY(!nodes[0]);
    nodes[0] = a;
    nodes.push_back(b);
    const std::vector<GenApi::INode*> copy(nodes.begin(), nodes.end());
    std::reverse(nodes.begin(), nodes.end());
    QCOMPARE(nodes[0], copy[1]);
    QVERIFY(std::find(nodes.begin(), nodes.end(), a) == nodes.begin() + 1);

    GenApi::FeatureList_t features;
    features.resize(2, dynamic_cast<GenApi::IValue*>(a));
    for (GenApi::IValue* feature : features)
        QCOMPARE(feature->GetNode(), a);
}

void TestGenApi::autovectorsShareTheirElements()
{
    GenApi::int64_autovector_t values(2);
    GenApi::int64_autovector_t copy;
    QCOMPARE(copy.size(), size_t(0));
    copy = values;
    copy[1] = GC_INT64_MIN;
    QCOMPARE(values[1], GC_INT64_MIN);
    QCOMPARE(values[0], int64_t(0));
    auto source = std::make_unique<GenApi::double_autovector_t>(1);
    const GenApi::double_autovector_t kept(*source);
    (*source)[0] = 0.5;
    source.reset();
    QCOMPARE(kept[0], 0.5);
}

void TestGenApi::lockIsRecursive()
{
    GenApi::CLock lock;
    {
        const GenApi::AutoLock outer(lock);
        {
            const GenApi::AutoLock inner(lock);
            QVERIFY(lock.TryLock());
            lock.Unlock();
        }
        QVERIFY(!isFreeForOthers(lock));
    }
    QVERIFY(isFreeForOthers(lock));
}

void TestGenApi::lockableObjectHoldsItsLock()
{
    struct Object : GenApi::LockableObject<Object>
    {
    } object;
    {
        const auto held = object.GetLock();
        QVERIFY(!isFreeForOthers(object.m_Lock));
    }
    QVERIFY(isFreeForOthers(object.m_Lock));
}

void TestGenApi::exceptionTellsWhatAndWhere()
{
    GenICam::GenericException copy("", "", 0);
    const GenICam::AccessException error("refused", "file.cpp", 12, "SetValue", "Gain", "AccessException");
    copy = error;
    QCOMPARE(copy.GetDescription(), "refused");
    QCOMPARE(copy.GetSourceFileName(), "file.cpp");
    QCOMPARE(copy.GetSourceLine(), 12U);
    const QByteArray what = copy.what();
    for (const char* part : {"refused", "file.cpp", "12", "SetValue", "Gain", "AccessException"})
        QVERIFY2(what.contains(part), part);
    QCOMPARE(thrownBy([] { GenICam::ThrowBadAlloc(__FILE__, __LINE__); }),
             QStringLiteral("BadAllocException"));
}

void TestGenApi::reporterTakesAllForms()
{
    QCOMPARE(GENERIC_EXCEPTION("%s %d", "line", 7).GetDescription(), "line 7");
    QCOMPARE(TIMEOUT_EXCEPTION().GetDescription(), "");
    QCOMPARE(DYNAMICCAST_EXCEPTION(std::string("100 %s")).GetDescription(), "100 %s");
    std::stringstream stream;
    stream << "stream " << 1;
    QCOMPARE(PROPERTY_EXCEPTION(stream).GetDescription(), "stream 1");
    const QByteArray cut = RUNTIME_EXCEPTION(std::string(5000, 'x')).GetDescription();
    QVERIFY(cut.size() >= 255 && cut.size() < 5000);
    QCOMPARE(thrownBy([] { throw OUT_OF_RANGE_EXCEPTION("x"); }), QStringLiteral("OutOfRangeException"));
}

void TestGenApi::integralCastRefusesWhatDoesNotFit()
{
    QCOMPARE(GenICam::INTEGRAL_CAST<int32_t>(int64_t(GC_INT32_MIN)), GC_INT32_MIN);
    for (const int64_t value : {int64_t(GC_INT32_MAX) + 1, int64_t(GC_INT32_MIN) - 1})
        QVERIFY(!thrownBy([&] { (void)GenICam::INTEGRAL_CAST<int32_t>(value); }).isEmpty());
    QVERIFY(!thrownBy([] { (void)GenICam::INTEGRAL_CAST<uint64_t>(int64_t(-1)); }).isEmpty());
}

void TestGenApi::accessModesCombine()
{
    using namespace GenApi;
    const EAccessMode modes[] = {NI, NA, WO, RO, RW};
    const EAccessMode expected[5][5] = {{NI, NI, NI, NI, NI},
                                        {NI, NA, NA, NA, NA},
                                        {NI, NA, WO, NA, WO},
                                        {NI, NA, NA, RO, RO},
                                        {NI, NA, WO, RO, RW}};
    for (int i = 0; i < 5; ++i)
        for (int j = 0; j < 5; ++j)
            QCOMPARE(Combine(modes[i], modes[j]), expected[i][j]);
}

void TestGenApi::visibilityAndCachingCombine()
{
    using namespace GenApi;
    QCOMPARE(Combine(Beginner, Invisible), Invisible);
    QCOMPARE(Combine(Guru, Expert), Guru);
    QCOMPARE(Combine(WriteThrough, WriteThrough), WriteThrough);
    QCOMPARE(Combine(WriteThrough, WriteAround), WriteAround);
    QCOMPARE(Combine(WriteAround, NoCache), NoCache);
    QVERIFY(IsVisible(Expert, Expert) && !IsVisible(Guru, Expert));
    QVERIFY(IsCacheable(WriteAround) && !IsCacheable(NoCache));
}

void TestGenApi::helpersAskTheNode()
{
    const auto map = nodeOfEachKind();
    const GenApi::CIntegerPtr pointer(map->GetNode("Integer"));
    const auto state = [&] {
        using namespace GenApi;
        const IBase* const base = pointer;
        const bool all[] = {IsReadable(base), IsWritable(base), IsAvailable(base), IsImplemented(base)};
        const bool byReference[] = {IsReadable(*base), IsWritable(*base), IsAvailable(*base),
                                    IsImplemented(*base)};
        const bool byPointer[] = {IsReadable(pointer), IsWritable(pointer), IsAvailable(pointer),
                                  IsImplemented(pointer)};
        QString text;
        for (int i = 0; i < 4; ++i)
            text += all[i] != byReference[i] || all[i] != byPointer[i] ? '?' : all[i] ? "rwai"[i] : '-';
        return text;
    };
    const std::pair<GenApi::EAccessMode, const char*> expected[] = {{GenApi::NI, "----"},
                                                                    {GenApi::NA, "---i"},
                                                                    {GenApi::WO, "-wai"},
                                                                    {GenApi::RO, "r-ai"},
                                                                    {GenApi::RW, "rwai"}};
    for (const auto& [mode, text] : expected) {
        pointer->GetNode()->ImposeAccessMode(mode);
        QCOMPARE(state(), QString::fromLatin1(text));
    }
    const GenApi::IBase* const none = nullptr;
    QVERIFY(!IsReadable(none) && !IsImplemented(none) && !IsAvailable(GenApi::CFloatPtr()));
}

void TestGenApi::enumerationsConvertToText()
{
    using namespace GenApi;
    QCOMPARE(EAccessModeClass::ToString(RW).c_str(), "RW");
    QCOMPARE(EAccessModeClass::ToString(_UndefinedAccesMode).c_str(), "_UndefinedAccessMode");
    QCOMPARE(EDisplayNotationClass::ToString(fnScientific).c_str(), "Scientific");
    EVisibility visibility = Beginner;
    QVERIFY(EVisibilityClass::FromString("Guru", &visibility));
    QVERIFY(!EVisibilityClass::FromString("guru", &visibility));
    QCOMPARE(visibility, Guru);
    gcstring text;
    ERepresentation representation = MACAddress;
    ERepresentationClass::ToString(text, &representation);
    QCOMPARE(text.c_str(), "MACAddress");
}

void TestGenApi::nullPointerThrowsWhenUsed()
{
    const GenApi::CIntegerPtr null;
    const auto thrown = QStringLiteral("LogicalErrorException");
    QVERIFY(!null && !null.IsValid() && null == nullptr && null == 0);
    QCOMPARE(thrownBy([&] { (void)null->GetMin(); }), thrown);
    QCOMPARE(thrownBy([&] { *null = 5; }), thrown);
    QCOMPARE(thrownBy([&] { (void)null(); }), thrown);
    QCOMPARE(thrownBy([&] { (void)(null != nullptr); }), thrown);
    QCOMPARE(thrownBy([&] { const GenApi::CNodePtr other(null); }), thrown);
    QCOMPARE(thrownBy([&] { (void)(null == 1); }), thrown);
    const GenApi::CIntegerPtr copy = null;
    QVERIFY(copy == null);
}

void TestGenApi::pointersCastAcrossInterfaces()
{
    const auto map = nodeOfEachKind();
    GenApi::CFloatPtr asFloat(map->GetNode("Float"));
    QVERIFY(asFloat.IsValid());
    QVERIFY(asFloat.GetIntAlias() == dynamic_cast<GenApi::IInteger*>(map->GetNode("Integer")));
    QVERIFY(!asFloat.GetEnumAlias());
    GenApi::CNodePtr node(asFloat);
    QVERIFY(node == map->GetNode("Float"));
    QVERIFY(!GenApi::CIntegerPtr(map->GetNode("Float")));
    QVERIFY(!GenApi::CIntegerPtr(map->GetNode("none")));
    QVERIFY(GenApi::CSelectorPtr(node).IsValid());
    node = map->GetNode("Integer");
    QCOMPARE(GenApi::CValuePtr(node)->GetNode(), map->GetNode("Integer"));
    QVERIFY(GenApi::CNodeMapPtr(map.get()) == map.get());
}

void TestGenApi::interfaceNamesFollowTheType()
{
    const auto map = nodeOfEachKind();
    for (const char* kind :
         {"Integer", "Float", "Boolean", "Command", "String", "Register", "Enumeration", "Port"})
        QCOMPARE(GenApi::GetInterfaceName(map->GetNode(kind)).c_str(), (gcstring("I") + kind).c_str());
}

void TestGenApi::everyInterfaceReadsAndWrites()
{
    const auto map = nodeOfEachKind();
    const GenApi::CIntegerPtr integer(map->GetNode("Integer"));
    *integer = GC_INT64_MAX;
    QCOMPARE((*integer)(), GC_INT64_MAX);
    QCOMPARE(integer->GetListOfValidValues()[1], int64_t(8));
    const GenApi::CFloatPtr real(map->GetNode("Float"));
    *real = 1.5;
    QCOMPARE(**real, 1.5);
    const GenApi::CBooleanPtr boolean(map->GetNode("Boolean"));
    *boolean = true;
    QVERIFY((*boolean)());
    const GenApi::CCommandPtr command(map->GetNode("Command"));
    (*command)();
    QVERIFY(command->IsDone());
    const GenApi::CStringPtr string(map->GetNode("String"));
    *string = "text";
    QCOMPARE((**string).c_str(), "text");
    const GenApi::CRegisterPtr bytes(map->GetNode("Register"));
    std::vector<uint8_t> written(static_cast<size_t>(bytes->GetLength()), 0xA5);
    std::vector<uint8_t> read(written.size());
    bytes->Set(written.data(), bytes->GetLength());
    bytes->Get(read.data(), bytes->GetLength());
    QCOMPARE(read, written);

    const GenApi::CEnumerationPtr enumeration(map->GetNode("Enumeration"));
    *enumeration = "On";
    QCOMPARE(GenApi::CEnumEntryPtr(enumeration->GetCurrentEntry())->GetSymbolic().c_str(), "On");
    GenApi::NodeList_t entries;
    enumeration->GetEntries(entries);
    QCOMPARE(GenApi::CEnumEntryPtr(entries[1])->GetValue(), enumeration->GetIntValue());
    GenApi::StringList_t symbolics;
    enumeration->GetSymbolics(symbolics);
    QCOMPARE(symbolics.size(), size_t(2));

    const GenApi::AutoLock held(map->GetLock());
    GenApi::FeatureList_t features;
    GenApi::CCategoryPtr(map->GetNode("Root"))->GetFeatures(features);
    QCOMPARE(features[1]->GetNode()->GetName().c_str(), "Enumeration");
}

void TestGenApi::callablesOfAllKindsAreCalled()
{
    const auto map = nodeOfEachKind();
    GenApi::INode* const node = map->GetNode("Integer");
    GenApi::IInteger& value = *GenApi::CIntegerPtr(node);
    DerivedListener listener;
    static int lambdaCalls = 0;
    lambdaCalls = functionCalls = 0;
    int capturedCalls = 0;
    const GenApi::CallbackHandleType handles[] = {
        GenApi::Register(node, countCall),
        GenApi::Register(node, &countCall, GenApi::cbPostOutsideLock),
        GenApi::Register(node, [](GenApi::INode*) { ++lambdaCalls; }),
        GenApi::Register(node, std::function<void(GenApi::INode*)>([&](GenApi::INode*) { ++capturedCalls; })),
        GenApi::Register(node, std::function<void(GenApi::INode*)>()),
        GenApi::Register(node, listener, &DerivedListener::changed),
        GenApi::Register(node, listener, &Listener::changed, GenApi::cbPostOutsideLock)};
    value = 8;
    QCOMPARE(functionCalls, 2);
    QCOMPARE(lambdaCalls, 1);
    QCOMPARE(capturedCalls, 1);
    QCOMPARE(listener.calls, 2);

    for (const auto handle : handles)
        GenApi::Deregister(handle);
    value = 0;
    QCOMPARE(functionCalls + lambdaCalls + capturedCalls + listener.calls, 6);
    QVERIFY(!node->DeregisterCallback(handles[0]));
}

void TestGenApi::callbackTestsItsPhase()
{
    Listener listener;
    const auto map = nodeOfEachKind();
    GenApi::INode* const node = map->GetNode("Integer");
    using Callback = GenApi::Member_NodeCallback<Listener, void (Listener::*)(GenApi::INode*)>;
    const std::unique_ptr<GenApi::CNodeCallback> callback(
        new Callback(node, listener, &Listener::changed, GenApi::cbPostInsideLock));
    (*callback)(GenApi::cbPostOutsideLock);
    QCOMPARE(listener.calls, 0);
    (*callback)(GenApi::cbPostInsideLock);
    QCOMPARE(listener.calls, 1);
    QCOMPARE(callback->GetNode(), node);
}

ZETO_TEST_MAIN(TestGenApi)

#include "tst_genapi.moc"
