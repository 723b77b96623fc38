#pragma once

#include "integersource.h"
#include "numberformat.h"
#include "sourcenode.h"

namespace ZetoNodeMap {

/// An integer feature.
class IntegerNode : public SourceNode<GenApi::IInteger, IntegerSource>
{
public:
    struct Settings
    {
        NumberFormat format;
        std::unique_ptr<IntegerSource> source;
    };

    IntegerNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings);

    int64_t integerValue() const override;
    std::string textValue() const override;
    using Node::assign;
    void assign(int64_t value) override;

    void SetValue(int64_t Value, bool Verify = true) override;
    IntegerNode& operator=(int64_t Value) override;
    int64_t GetValue(bool Verify = false, bool IgnoreCache = false) override;
    int64_t operator()() override;
    int64_t operator*() override;
    int64_t GetMin() override;
    int64_t GetMax() override;
    GenApi::EIncMode GetIncMode() override;
    int64_t GetInc() override;
    GenApi::int64_autovector_t GetListOfValidValues(bool bounded = true) override;
    GenApi::ERepresentation GetRepresentation() override;
    GenICam::gcstring GetUnit() override;
    void ImposeMin(int64_t Value) override;
    void ImposeMax(int64_t Value) override;

protected:
    GenICam::gcstring valueToText(bool verify, bool ignoreCache) override;
    void valueFromText(const GenICam::gcstring& text, bool verify) override;

private:
    void set(int64_t value, bool verify);
    int64_t checkedValue(bool verify, bool ignoreCache);
    void requireWithinLimits(int64_t value) const;
    void requireAllowed(int64_t value) const;
    int64_t min() const;
    int64_t max() const;

    NumberFormat m_format;
    int64_t m_imposedMin = std::numeric_limits<int64_t>::min();
    int64_t m_imposedMax = std::numeric_limits<int64_t>::max();
};

} // namespace ZetoNodeMap
