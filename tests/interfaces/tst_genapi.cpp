#include "exceptionname.h"
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
static_assert(!std::is_destructible_v<GenApi::INodeMap>);
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

/// One node of each kind, named by its type.
std::unique_ptr<ZetoNodeMap::NodeMap> nodeOfEachKind()
{
    ZetoNodeMap::NodeMapBuilder b;
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
    void textFinds();
    void textComparesAndConcatenates();
    void textGoesThroughStreams();
    void stringVectorEdits();
    void nodeVectorWorksWithAlgorithms();
    void autovectorsShareTheirElements();
    void locksAreRecursive();
    void exceptionTellsWhatAndWhere();
    void reporterTakesAllForms();
    void modesAndLevelsCombine();
    void helpersAskTheNode();
    void enumerationsConvertToText();
    void nullPointerThrowsWhenUsed();
    void pointersCastAcrossInterfaces();
    void operatorsReadAndWrite();
    void callablesOfAllKindsAreCalled();
};

void TestGenApi::textKeepsBytes()
{
    QCOMPARE(gcstring("abc", 2).c_str(), "ab");
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
    const std::unique_ptr<gcstring> onHeap(new gcstring("heap"));
    onHeap->swap(text);
    QCOMPARE(onHeap->c_str(), "yy");
    QCOMPARE(text[0], 'h');
}

void TestGenApi::textFinds()
{
    const gcstring text("one two one");
    QCOMPARE(text.find('n', 2), size_t(9));
    QCOMPARE(text.find(gcstring("one"), 1), size_t(8));
    QCOMPARE(text.find(gcstring("twins"), 0, 2), size_t(4));
    QCOMPARE(text.find("two"), size_t(4));
    QCOMPARE(text.find("owner", 0, 2), GCSTRING_NPOS);
    QCOMPARE(text.find_first_of("wt"), size_t(4));
    QCOMPARE(text.find_first_not_of("eno"), size_t(3));
    QCOMPARE(gcstring::_npos(), gcstring::npos);
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
    QCOMPARE(exceptionName([&] { (void)b.substr(9); }), QStringLiteral("OutOfRange"));
}

void TestGenApi::textGoesThroughStreams()
{
    std::istringstream in("word rest;end");
    gcstring word;
    gcstring rest;
    in >> word;
    GenICam::getline(in, rest, ';');
    std::ostringstream out;
    out << word << '|' << rest;
    QCOMPARE(out.str(), std::string("word| rest"));
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
    QCOMPARE(exceptionName([&] { (void)copy.at(4); }), QStringLiteral("OutOfRange"));
    copy.clear();
    QVERIFY(copy.empty() && copy.begin() == copy.end());
}

void TestGenApi::nodeVectorWorksWithAlgorithms()
{
    const auto map = nodeOfEachKind();
    GenApi::INode* const a = map->GetNode("Integer");
    GenApi::NodeList_t nodes(1);
    QVERIFY(!nodes[0]);
    nodes.push_back(a);
    const std::vector<GenApi::INode*> copy(nodes.begin(), nodes.end());
    std::reverse(nodes.begin(), nodes.end());
    QCOMPARE(nodes[0], copy[1]);
    QVERIFY(std::find(nodes.begin(), nodes.end(), nullptr) == nodes.begin() + 1);

    GenApi::FeatureList_t features;
    features.resize(2, dynamic_cast<GenApi::IValue*>(a));
    for (GenApi::IValue* feature : features)
        QCOMPARE(feature->GetNode(), a);
}

void TestGenApi::autovectorsShareTheirElements()
{
    GenApi::int64_autovector_t copy;
    QCOMPARE(copy.size(), size_t(0));
    GenApi::int64_autovector_t values(2);
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

void TestGenApi::locksAreRecursive()
{
    struct Object : GenApi::LockableObject<Object>
    {
    } object;
    {
        const auto outer = object.GetLock();
        {
            const GenApi::AutoLock inner(object.m_Lock);
            QVERIFY(object.m_Lock.TryLock());
            object.m_Lock.Unlock();
        }
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
    QVERIFY_EXCEPTION_THROWN(GenICam::ThrowBadAlloc(__FILE__, __LINE__), GenICam::BadAllocException);
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
    QCOMPARE(GenICam::INTEGRAL_CAST<int32_t>(int64_t(GC_INT32_MIN)), GC_INT32_MIN);
    for (const int64_t value : {int64_t(GC_INT32_MAX) + 1, int64_t(GC_INT32_MIN) - 1})
        QCOMPARE(exceptionName([&] { (void)GenICam::INTEGRAL_CAST<int32_t>(value); }),
                 QStringLiteral("Runtime"));
}

void TestGenApi::modesAndLevelsCombine()
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
    QCOMPARE(Combine(Guru, Expert), Guru);
    QCOMPARE(Combine(WriteThrough, WriteThrough), WriteThrough);
    QCOMPARE(Combine(WriteThrough, WriteAround), WriteAround);
    QCOMPARE(Combine(WriteAround, NoCache), NoCache);
    QVERIFY(IsVisible(Expert, Expert) && !IsVisible(Guru, Expert));
    QVERIFY(IsCacheable(WriteAround) && !IsCacheable(NoCache));
}

void TestGenApi::helpersAskTheNode()
{
    using namespace GenApi;
    const auto map = nodeOfEachKind();
    const CIntegerPtr pointer(map->GetNode("Integer"));
    const IBase* const base = pointer;
    const auto state = [](const auto& node) -> QByteArray {
        return QByteArray(IsReadable(node) ? "r" : "-") + (IsWritable(node) ? 'w' : '-') +
               (IsAvailable(node) ? 'a' : '-') + (IsImplemented(node) ? 'i' : '-');
    };
    const std::pair<EAccessMode, QByteArray> expected[] = {
        {NI, "----"}, {NA, "---i"}, {WO, "-wai"}, {RO, "r-ai"}, {RW, "rwai"}};
    for (const auto& [mode, text] : expected) {
        pointer->GetNode()->ImposeAccessMode(mode);
        QCOMPARE((QByteArrayList{state(base), state(*base), state(pointer)}),
                 (QByteArrayList{text, text, text}));
    }
    QCOMPARE(state(CFloatPtr()), QByteArray("----"));
    QCOMPARE(state(static_cast<const IBase*>(nullptr)), QByteArray("----"));
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
}

void TestGenApi::nullPointerThrowsWhenUsed()
{
    const GenApi::CIntegerPtr null;
    const auto thrown = QStringLiteral("LogicalError");
    QVERIFY(!null && !null.IsValid() && null == nullptr && null == 0);
    QCOMPARE(exceptionName([&] { (void)null->GetMin(); }), thrown);
    QCOMPARE(exceptionName([&] { *null = 5; }), thrown);
    QCOMPARE(exceptionName([&] { (void)null(); }), thrown);
    QCOMPARE(exceptionName([&] { (void)(null != nullptr); }), thrown);
    QCOMPARE(exceptionName([&] { const GenApi::CNodePtr other(null); }), thrown);
    QCOMPARE(exceptionName([&] { (void)(null == 1); }), thrown);
    const GenApi::CIntegerPtr copy = null;
    QVERIFY(copy == null);
}

void TestGenApi::pointersCastAcrossInterfaces()
{
    const auto map = nodeOfEachKind();
    GenApi::CFloatPtr asFloat(map->GetNode("Float"));
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
    for (const char* kind :
         {"Integer", "Float", "Boolean", "Command", "String", "Register", "Enumeration", "Port"})
        QCOMPARE(GenApi::GetInterfaceName(map->GetNode(kind)).c_str(), (gcstring("I") + kind).c_str());
}

void TestGenApi::operatorsReadAndWrite()
{
    const auto map = nodeOfEachKind();
    const GenApi::CIntegerPtr integer(map->GetNode("Integer"));
    *integer = GC_INT64_MAX;
    QCOMPARE((*integer)(), GC_INT64_MAX);
    QCOMPARE(**integer, GC_INT64_MAX);
    const GenApi::CFloatPtr real(map->GetNode("Float"));
    *real = 1.5;
    QCOMPARE((*real)(), 1.5);
    QCOMPARE(**real, 1.5);
    const GenApi::CBooleanPtr boolean(map->GetNode("Boolean"));
    *boolean = true;
    QVERIFY((*boolean)());
    const GenApi::CStringPtr string(map->GetNode("String"));
    *string = "text";
    QCOMPARE((*string)().c_str(), "text");
    QCOMPARE((**string).c_str(), "text");
    const GenApi::CEnumerationPtr enumeration(map->GetNode("Enumeration"));
    *enumeration = "On";
    QCOMPARE((**enumeration).c_str(), "On");
    const GenApi::CCommandPtr command(map->GetNode("Command"));
    (*command)();
    QVERIFY(command->IsDone());
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
    QCOMPARE(listener.calls, 2); // each in its own phase alone

    for (const auto handle : handles)
        GenApi::Deregister(handle);
    value = 0;
    QCOMPARE(functionCalls + lambdaCalls + capturedCalls + listener.calls, 6);
}

ZETO_TEST_MAIN(TestGenApi)

#include "tst_genapi.moc"
