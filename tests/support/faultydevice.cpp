#include "faultydevice.h"

namespace {

using namespace ZetoGenParam;

/// Tells a client's sink of the parameter that the client knows.
class ForwardingSink final : public ParamEventSink
{
public:
    ForwardingSink(Param& known, ParamEventSink& client)
        : m_known(known)
        , m_client(client)
    {
    }

    void OnParamChanged(Param* /*inner*/) override { m_client.OnParamChanged(&m_known); }

private:
    Param& m_known;
    ParamEventSink& m_client;
};

template <typename Interface>
class FaultyParam : public Interface
{
public:
    FaultyParam(FaultyArray& array, Interface& inner, ParamFaults& faults)
        : m_array(array)
        , m_inner(inner)
        , m_faults(faults)
    {
    }

    int32_t GetType() override
    {
        return get([&] { return m_inner.GetType(); });
    }
    const char* GetName() override
    {
        return get([&] { return m_inner.GetName(); });
    }
    bool IsAvailable() override
    {
        return get([&] { return m_inner.IsAvailable(); });
    }
    bool IsWritable() override
    {
        return get([&] { return m_inner.IsWritable(); });
    }
    bool IsReadable() override
    {
        return get([&] { return m_inner.IsReadable(); });
    }

    int32_t RegisterEventSink(ParamEventSink* sink) override
    {
        return m_faults.perform([&] { return m_inner.RegisterEventSink(forwarder(*sink)); });
    }

    /// Lets the sink go in any case: nobody could do more about one that stays.
    int32_t UnregisterEventSink(ParamEventSink* sink) override
    {
        const int32_t code = m_inner.UnregisterEventSink(forwarder(*sink));
        return m_faults.perform([&] { return code; });
    }

protected:
    template <typename Call>
    auto get(Call call)
    {
        return m_faults.get(nullptr, call);
    }
    template <typename Call>
    auto get(int32_t* error, Call call)
    {
        return m_faults.get(error, call);
    }
    template <typename Call>
    int32_t write(const QString& value, Call call)
    {
        return m_faults.write(QString::fromUtf8(m_inner.GetName()) + value, call);
    }

    FaultyArray& m_array;
    Interface& m_inner;
    ParamFaults& m_faults;

private:
    ParamEventSink* forwarder(ParamEventSink& client)
    {
        auto& known = m_forwarders[&client];
        if (!known)
            known = std::make_unique<ForwardingSink>(*this, client);
        return known.get();
    }

    std::unordered_map<ParamEventSink*, std::unique_ptr<ForwardingSink>> m_forwarders;
};

template <typename Interface, typename Value>
class FaultyValue : public FaultyParam<Interface>
{
public:
    using FaultyParam<Interface>::FaultyParam;

    int32_t SetValue(Value value) override
    {
        return this->write(QStringLiteral("=%1").arg(value), [&] { return this->m_inner.SetValue(value); });
    }
    Value GetValue(int32_t* error) override
    {
        return this->get(error, [&] { return this->m_inner.GetValue(error); });
    }
};

template <typename Interface, typename Value>
class FaultyNumber final : public FaultyValue<Interface, Value>
{
public:
    using FaultyValue<Interface, Value>::FaultyValue;

    Value GetMin(int32_t* error) override
    {
        return this->get(error, [&] { return this->m_inner.GetMin(error); });
    }
    Value GetMax(int32_t* error) override
    {
        return this->get(error, [&] { return this->m_inner.GetMax(error); });
    }
    Value GetIncrement(int32_t* error) override
    {
        return this->get(error, [&] { return this->m_inner.GetIncrement(error); });
    }
};

class FaultyEntry final : public FaultyParam<EnumEntry>
{
public:
    using FaultyParam::FaultyParam;

    int64_t GetValue() override
    {
        return get([&] { return m_inner.GetValue(); });
    }
    const char* GetSymbolic() override
    {
        return get([&] { return m_inner.GetSymbolic(); });
    }
};

class FaultyEnum final : public FaultyValue<Enum, int64_t>
{
public:
    using FaultyValue::FaultyValue;

    uint64_t GetEntriesCount() override
    {
        return get([&] { return m_inner.GetEntriesCount(); });
    }
    EnumEntry* GetEntry(uint64_t index) override
    {
        return get([&] { return m_array.around(m_inner.GetEntry(index)); });
    }
    const char* GetValueStr(int32_t* error) override
    {
        return get(error, [&] { return m_inner.GetValueStr(error); });
    }
    int32_t SetValueStr(const char* symbolic) override
    {
        return write(QLatin1Char('=') + QString::fromUtf8(symbolic),
                     [&] { return m_inner.SetValueStr(symbolic); });
    }
};

class FaultyCommand final : public FaultyParam<Command>
{
public:
    using FaultyParam::FaultyParam;

    int32_t Execute() override
    {
        return write(QStringLiteral("()"), [&] { return m_inner.Execute(); });
    }
    bool IsDone(int32_t* error) override
    {
        return get(error, [&] { return m_inner.IsDone(error); });
    }
};

/// What stands for each kind of parameter. Declared for their results only.
struct Faulty
{
    static FaultyParam<Param> of(Param*);
    static FaultyValue<Boolean, bool> of(Boolean*);
    static FaultyValue<String, const char*> of(String*);
    static FaultyNumber<Int, int64_t> of(Int*);
    static FaultyNumber<Float, double> of(Float*);
    static FaultyEnum of(Enum*);
    static FaultyEntry of(EnumEntry*);
    static FaultyCommand of(Command*);
};

} // namespace

FaultyArray::FaultyArray(Array& inner, ParamFaults& faults)
    : m_inner(inner)
    , m_faults(faults)
{
}

FaultyArray::~FaultyArray() = default;

template <typename Interface>
Interface* FaultyArray::around(Interface* inner)
{
    if (!inner)
        return nullptr;
    auto& known = m_params[inner];
    if (!known)
        known = std::make_unique<decltype(Faulty::of(inner))>(*this, *inner, m_faults);
    return dynamic_cast<Interface*>(known.get());
}

/// By its type, so that it is the same one that the typed functions give.
Param* FaultyArray::aroundAny(Param* inner)
{
    switch (inner ? inner->GetType() : TypeUnknown) {
    case TypeInt:
        return around(dynamic_cast<Int*>(inner));
    case TypeFloat:
        return around(dynamic_cast<Float*>(inner));
    case TypeBoolean:
        return around(dynamic_cast<Boolean*>(inner));
    case TypeEnum:
        return around(dynamic_cast<Enum*>(inner));
    case TypeEnumEntry:
        return around(dynamic_cast<EnumEntry*>(inner));
    case TypeString:
        return around(dynamic_cast<String*>(inner));
    case TypeCommand:
        return around(dynamic_cast<Command*>(inner));
    default:
        return around(inner);
    }
}

Param* FaultyArray::GetParam(const char* name, int32_t* error)
{
    return m_faults.get(error, [&] { return aroundAny(m_inner.GetParam(name, error)); });
}

Enum* FaultyArray::GetEnum(const char* name, int32_t* error)
{
    return m_faults.get(error, [&] { return around(m_inner.GetEnum(name, error)); });
}

Int* FaultyArray::GetInt(const char* name, int32_t* error)
{
    return m_faults.get(error, [&] { return around(m_inner.GetInt(name, error)); });
}

Float* FaultyArray::GetFloat(const char* name, int32_t* error)
{
    return m_faults.get(error, [&] { return around(m_inner.GetFloat(name, error)); });
}

Boolean* FaultyArray::GetBoolean(const char* name, int32_t* error)
{
    return m_faults.get(error, [&] { return around(m_inner.GetBoolean(name, error)); });
}

String* FaultyArray::GetString(const char* name, int32_t* error)
{
    return m_faults.get(error, [&] { return around(m_inner.GetString(name, error)); });
}

Command* FaultyArray::GetCommand(const char* name, int32_t* error)
{
    return m_faults.get(error, [&] { return around(m_inner.GetCommand(name, error)); });
}

GENAPI_NAMESPACE::INodeMap* FaultyArray::GetNodeMap(uint32_t index)
{
    return m_faults.get(nullptr, [&] { return m_inner.GetNodeMap(index); });
}

FaultyDevice::FaultyDevice(ZetoCam::Device& inner)
    : m_inner(inner)
    , m_array(*inner.GetParameters(nullptr), m_faults)
{
}

Array* FaultyDevice::GetParameters(int32_t* error)
{
    if (error)
        *error = ZetoCam::Success;
    return m_faults.get(error, [&]() -> Array* { return &m_array; });
}

int32_t FaultyDevice::RegisterEvent(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context)
{
    return m_faults.perform([&] { return m_inner.RegisterEvent(eventId, callback, context); });
}

int32_t FaultyDevice::UnregisterEvent(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context)
{
    const int32_t code = m_inner.UnregisterEvent(eventId, callback, context);
    return m_faults.perform([&] { return code; });
}
