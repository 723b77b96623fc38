#pragma once

#include "floatsource.h"
#include "numberformat.h"
#include "sourcenode.h"

namespace ZetoNodeMap {

/// A float feature.
class FloatNode : public SourceNode<GenApi::IFloat, FloatSource>
{
public:
    struct Settings
    {
        NumberFormat format;
        std::unique_ptr<FloatSource> source;
    };

    FloatNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings);

    int64_t integerValue() const override;
    double floatValue() const override;
    std::string textValue() const override;
    using Node::assign;
    void assign(int64_t value) override;
    void assign(double value) override;

    void SetValue(double Value, bool Verify = true) override;
    FloatNode& operator=(double Value) override;
    double GetValue(bool Verify = false, bool IgnoreCache = false) override;
    double operator()() override;
    double operator*() override;
    double GetMin() override;
    double GetMax() override;
    bool HasInc() override;
    GenApi::EIncMode GetIncMode() override;
    double GetInc() override;
    GenApi::double_autovector_t GetListOfValidValues(bool bounded = true) override;
    GenApi::ERepresentation GetRepresentation() override;
    GenICam::gcstring GetUnit() const override;
    GenApi::EDisplayNotation GetDisplayNotation() const override;
    int64_t GetDisplayPrecision() const override;
    void ImposeMin(double Value) override;
    void ImposeMax(double Value) override;

protected:
    GenICam::gcstring valueToText(bool verify, bool ignoreCache) override;
    void valueFromText(const GenICam::gcstring& text, bool verify) override;

private:
    void set(double value, bool verify);
    double checkedValue(bool verify, bool ignoreCache);
    void requireWithinLimits(double value) const;
    std::string toText(double value) const;
    double min() const;
    double max() const;

    NumberFormat m_format;
    double m_imposedMin = std::numeric_limits<double>::lowest();
    double m_imposedMax = std::numeric_limits<double>::max();
};

} // namespace ZetoNodeMap
