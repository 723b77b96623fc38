#pragma once

#include <GenICam.h>

#include <map>
#include <memory>
#include <vector>

/// The interface version as one number, for what later versions add or change.
#define GENICAM_VERSION (GENICAM_VERSION_MAJOR * 100 + GENICAM_VERSION_MINOR)

/// A node of every kind written as an implementer does it. Values are plain members; a write goes through
/// write(), which checks the access mode and calls the callbacks.
class MockNode : public GenApi::INode, public GenApi::ISelector, virtual public GenApi::IValue
{
public:
    explicit MockNode(const char* name, GenApi::EInterfaceType type = GenApi::intfIBase)
        : m_name(name)
        , m_type(type)
    {
    }
    ~MockNode() override
    {
        for (GenApi::CNodeCallback* callback : m_callbacks)
            callback->Destroy();
    }

    GenApi::EAccessMode GetAccessMode() const override { return m_accessMode; }

    GenICam::gcstring GetName(bool full) const override { return full ? "Cust::" + m_name : m_name; }
    GenApi::ENameSpace GetNameSpace() const override { return GenApi::Custom; }
    GenApi::EVisibility GetVisibility() const override { return GenApi::Expert; }
    void InvalidateNode() override { fire(); }
    bool IsCachable() const override { return true; }
    GenApi::EYesNo IsAccessModeCacheable() const override { return GenApi::Yes; }
    GenApi::ECachingMode GetCachingMode() const override { return GenApi::WriteThrough; }
    int64_t GetPollingTime() const override { return -1; }
    GenICam::gcstring GetToolTip() const override { return ""; }
    GenICam::gcstring GetDescription() const override { return ""; }
    GenICam::gcstring GetDisplayName() const override { return m_name; }
    GenICam::gcstring GetDeviceName() const override { return "Device"; }
    void GetChildren(GenApi::NodeList_t&, GenApi::ELinkType) const override {}
    void GetParents(GenApi::NodeList_t&) const override {}
    GenApi::CallbackHandleType RegisterCallback(GenApi::CNodeCallback* callback) override
    {
        m_callbacks.push_back(callback);
        return reinterpret_cast<GenApi::CallbackHandleType>(callback);
    }
    bool DeregisterCallback(GenApi::CallbackHandleType handle) override
    {
        for (auto it = m_callbacks.begin(); it != m_callbacks.end(); ++it) {
            if (reinterpret_cast<GenApi::CallbackHandleType>(*it) == handle) {
                (*it)->Destroy();
                m_callbacks.erase(it);
                return true;
            }
        }
        return false;
    }
    GenApi::INodeMap* GetNodeMap() const override { return nullptr; }
    GenICam::gcstring GetEventID() const override { return ""; }
    bool IsStreamable() const override { return false; }
    void GetPropertyNames(GenICam::gcstring_vector&) const override {}
    bool GetProperty(const GenICam::gcstring&, GenICam::gcstring&, GenICam::gcstring&) override
    {
        return false;
    }
    void ImposeAccessMode(GenApi::EAccessMode mode) override { m_accessMode = mode; }
    void ImposeVisibility(GenApi::EVisibility) override {}
    INode* GetAlias() const override { return nullptr; }
    INode* GetCastAlias() const override { return m_castAlias; }
    GenICam::gcstring GetDocuURL() const override { return ""; }
    bool IsDeprecated() const override { return false; }
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override { return m_type; }
    bool IsFeature() const override { return true; }

    GenICam::gcstring ToString(bool, bool) override { return m_name; }
    void FromString(const GenICam::gcstring& text, bool) override
    {
        throw INVALID_ARGUMENT_EXCEPTION("'%s' is no value", text.c_str());
    }
    bool IsValueCacheValid() const override { return false; }

    bool IsSelector() const override { return false; }
    void GetSelectedFeatures(GenApi::FeatureList_t&) const override {}
    void GetSelectingFeatures(GenApi::FeatureList_t&) const override {}

    INode* m_castAlias = nullptr;

protected:
    template <class T>
    void write(T& member, const T& value)
    {
        if (!GenApi::IsWritable(this))
            throw ACCESS_EXCEPTION("'%s' cannot be written", m_name.c_str());
        member = value;
        fire();
    }

private:
    void fire() const
    {
        for (const auto phase : {GenApi::cbPostInsideLock, GenApi::cbPostOutsideLock})
            for (const GenApi::CNodeCallback* callback : m_callbacks)
                (*callback)(phase);
    }

    GenICam::gcstring m_name;
    GenApi::EInterfaceType m_type;
    GenApi::EAccessMode m_accessMode = GenApi::RW;
    std::vector<GenApi::CNodeCallback*> m_callbacks;
};

class MockInteger : public MockNode, public GenApi::IInteger
{
public:
    explicit MockInteger(const char* name)
        : MockNode(name, GenApi::intfIInteger)
    {
    }
    void SetValue(int64_t value, bool) override { write(m_value, value); }
    IInteger& operator=(int64_t value) override
    {
        SetValue(value, true);
        return *this;
    }
    int64_t GetValue(bool, bool) override { return m_value; }
    int64_t operator()() override { return m_value; }
    int64_t operator*() override { return m_value; }
    int64_t GetMin() override { return GC_INT64_MIN; }
    int64_t GetMax() override { return GC_INT64_MAX; }
    GenApi::EIncMode GetIncMode() override { return GenApi::listIncrement; }
    int64_t GetInc() override { return 1; }
    GenApi::int64_autovector_t GetListOfValidValues(bool) override
    {
        GenApi::int64_autovector_t values(2);
        values[1] = 8;
        return values;
    }
    GenApi::ERepresentation GetRepresentation() override { return GenApi::Linear; }
    GenICam::gcstring GetUnit() override { return "us"; }
    void ImposeMin(int64_t) override {}
    void ImposeMax(int64_t) override {}

private:
    int64_t m_value = 0;
};

class MockFloat : public MockNode, public GenApi::IFloat
{
public:
    explicit MockFloat(const char* name)
        : MockNode(name, GenApi::intfIFloat)
    {
    }
    void SetValue(double value, bool) override { write(m_value, value); }
    IFloat& operator=(double value) override
    {
        SetValue(value, true);
        return *this;
    }
    double GetValue(bool, bool) override { return m_value; }
    double operator()() override { return m_value; }
    double operator*() override { return m_value; }
    double GetMin() override { return -DBL_MAX; }
    double GetMax() override { return DBL_MAX; }
    bool HasInc() override { return false; }
    GenApi::EIncMode GetIncMode() override { return GenApi::noIncrement; }
    double GetInc() override { throw RUNTIME_EXCEPTION("no increment"); }
    GenApi::double_autovector_t GetListOfValidValues(bool) override { return GenApi::double_autovector_t(); }
    GenApi::ERepresentation GetRepresentation() override { return GenApi::Linear; }
    GenICam::gcstring GetUnit() const override { return "ms"; }
    GenApi::EDisplayNotation GetDisplayNotation() const override { return GenApi::fnAutomatic; }
    int64_t GetDisplayPrecision() const override { return 6; }
    void ImposeMin(double) override {}
    void ImposeMax(double) override {}

private:
    double m_value = 0;
};

class MockBoolean : public MockNode, public GenApi::IBoolean
{
public:
    using IBoolean::operator=;
    explicit MockBoolean(const char* name)
        : MockNode(name, GenApi::intfIBoolean)
    {
    }
    void SetValue(bool value, bool) override { write(m_value, value); }
    bool GetValue(bool, bool) const override { return m_value; }

private:
    bool m_value = false;
};

class MockCommand : public MockNode, public GenApi::ICommand
{
public:
    explicit MockCommand(const char* name)
        : MockNode(name, GenApi::intfICommand)
    {
    }
    void Execute(bool) override { write(m_done, true); }
    void operator()() override { Execute(true); }
    bool IsDone(bool) override { return m_done; }

private:
    bool m_done = false;
};

class MockString : public MockNode, public GenApi::IString
{
public:
    explicit MockString(const char* name)
        : MockNode(name, GenApi::intfIString)
    {
    }
    void SetValue(const GenICam::gcstring& value, bool) override { write(m_value, value); }
    IString& operator=(const GenICam::gcstring& value) override
    {
        SetValue(value, true);
        return *this;
    }
    GenICam::gcstring GetValue(bool, bool) override { return m_value; }
    GenICam::gcstring operator()() override { return m_value; }
    GenICam::gcstring operator*() override { return m_value; }
#if GENICAM_VERSION >= 303
    int64_t GetMaxLength(bool) override
    {
        return 32;
    }
#else
    int64_t GetMaxLength() override
    {
        return 32;
    }
#endif

private:
    GenICam::gcstring m_value;
};

class MockRegister : public MockNode, public GenApi::IRegister
{
public:
    explicit MockRegister(const char* name)
        : MockNode(name, GenApi::intfIRegister)
    {
    }
    void Set(const uint8_t* bytes, int64_t, bool) override { write(m_byte, *bytes); }
    void Get(uint8_t* bytes, int64_t, bool, bool) override { *bytes = m_byte; }
#if GENICAM_VERSION >= 303
    int64_t GetLength(bool) override
    {
        return 1;
    }
    int64_t GetAddress(bool) override
    {
        return 0;
    }
#else
    int64_t GetLength() override
    {
        return 1;
    }
    int64_t GetAddress() override
    {
        return 0;
    }
#endif

private:
    uint8_t m_byte = 0;
};

class MockEnumEntry : public MockNode, public GenApi::IEnumEntry
{
public:
    MockEnumEntry(const char* symbolic, int64_t value)
        : MockNode(symbolic, GenApi::intfIEnumEntry)
        , m_value(value)
    {
    }
    int64_t GetValue() override { return m_value; }
    GenICam::gcstring GetSymbolic() const override { return GetName(false); }
    double GetNumericValue() override { return static_cast<double>(m_value); }
    bool IsSelfClearing() override { return false; }

private:
    int64_t m_value;
};

/// Has the entries "Off" (0) and "On" (1).
class MockEnumeration : public MockNode, public GenApi::IEnumeration
{
public:
    explicit MockEnumeration(const char* name)
        : MockNode(name, GenApi::intfIEnumeration)
    {
    }
    void GetSymbolics(GenApi::StringList_t& symbolics) override
    {
        for (MockEnumEntry* entry : m_entries)
            symbolics.push_back(entry->GetSymbolic());
    }
    void GetEntries(GenApi::NodeList_t& entries) override
    {
        for (MockEnumEntry* entry : m_entries)
            entries.push_back(entry);
    }
    IEnumeration& operator=(const GenICam::gcstring& text) override
    {
        SetIntValue(GetEntryByName(text)->GetValue(), true);
        return *this;
    }
    void SetIntValue(int64_t value, bool) override { write(m_value, value); }
    GenICam::gcstring operator*() override { return GetCurrentEntry(false, false)->GetSymbolic(); }
    int64_t GetIntValue(bool, bool) override { return m_value; }
    GenApi::IEnumEntry* GetEntryByName(const GenICam::gcstring& symbolic) override
    {
        return symbolic == "Off" ? &m_off : symbolic == "On" ? &m_on : nullptr;
    }
    GenApi::IEnumEntry* GetEntry(const int64_t value) override
    {
        return value == 0 ? &m_off : value == 1 ? &m_on : nullptr;
    }
    GenApi::IEnumEntry* GetCurrentEntry(bool, bool) override { return GetEntry(m_value); }

private:
    MockEnumEntry m_off{"Off", 0};
    MockEnumEntry m_on{"On", 1};
    MockEnumEntry* const m_entries[2] = {&m_off, &m_on};
    int64_t m_value = 0;
};

class MockCategory : public MockNode, public GenApi::ICategory
{
public:
    explicit MockCategory(const char* name)
        : MockNode(name, GenApi::intfICategory)
    {
    }
    void GetFeatures(GenApi::FeatureList_t& features) const override { features = m_features; }

    GenApi::FeatureList_t m_features;
};

/// A map of the given nodes.
class MockNodeMap final : public GenApi::INodeMap
{
public:
    explicit MockNodeMap(std::vector<GenApi::INode*> nodes)
        : m_nodes(std::move(nodes))
    {
    }
    void GetNodes(GenApi::NodeList_t& nodes) const override
    {
        for (GenApi::INode* node : m_nodes)
            nodes.push_back(node);
    }
    GenApi::INode* GetNode(const GenICam::gcstring& name) const override
    {
        for (GenApi::INode* node : m_nodes)
            if (node->GetName() == name)
                return node;
        return nullptr;
    }
    void InvalidateNodes() const override {}
    bool Connect(GenApi::IPort*, const GenICam::gcstring&) const override { return false; }
    bool Connect(GenApi::IPort*) const override { return false; }
#if GENICAM_VERSION >= 302
    bool Connect(GenApi::IPortStacked*, const GenICam::gcstring&) override
    {
        return false;
    }
    bool Connect(GenApi::IPortStacked*) override
    {
        return false;
    }
    GenApi::CNodeWriteConcatenator* NewNodeWriteConcatenator() const override
    {
        return nullptr;
    }
    bool ConcatenatedWrite(GenApi::CNodeWriteConcatenator*, bool, GenICam::gcstring_vector*) override
    {
        return false;
    }
#endif
#if GENICAM_VERSION >= 301
    bool ParseSwissKnifes(GenICam::gcstring_vector*) const override
    {
        return true;
    }
#endif
#if GENICAM_VERSION >= 304
    void SetSuppressCallbackMode(GenApi::ECallbackSuppressMode) override
    {
    }
#endif
    GenICam::gcstring GetDeviceName() override
    {
        return "Device";
    }
    void Poll(int64_t) override
    {
    }
    GenApi::CLock& GetLock() const override
    {
        return m_lock;
    }
    uint64_t GetNumNodes() const override
    {
        return m_nodes.size();
    }

private:
    std::vector<GenApi::INode*> m_nodes;
    mutable GenApi::CLock m_lock;
};
