#pragma once

#include "nodeparam.h"

namespace ZetoGenParam {

/// The parameters over single values. Each wraps one node and turns its exceptions into codes.

class IntParam final : public Int, public NodeParam
{
public:
    IntParam(GENAPI_NAMESPACE::INode& node, GENAPI_NAMESPACE::IInteger& value);

    int32_t SetValue(int64_t value) override;
    int64_t GetValue(int32_t* error) override;
    int64_t GetMin(int32_t* error) override;
    int64_t GetMax(int32_t* error) override;
    int64_t GetIncrement(int32_t* error) override;

private:
    GENAPI_NAMESPACE::IInteger& m_value;
};

class FloatParam final : public Float, public NodeParam
{
public:
    FloatParam(GENAPI_NAMESPACE::INode& node, GENAPI_NAMESPACE::IFloat& value);

    int32_t SetValue(double value) override;
    double GetValue(int32_t* error) override;
    double GetMin(int32_t* error) override;
    double GetMax(int32_t* error) override;
    double GetIncrement(int32_t* error) override;

private:
    GENAPI_NAMESPACE::IFloat& m_value;
};

class BooleanParam final : public Boolean, public NodeParam
{
public:
    BooleanParam(GENAPI_NAMESPACE::INode& node, GENAPI_NAMESPACE::IBoolean& value);

    int32_t SetValue(bool value) override;
    bool GetValue(int32_t* error) override;

private:
    GENAPI_NAMESPACE::IBoolean& m_value;
};

class StringParam final : public String, public NodeParam
{
public:
    StringParam(GENAPI_NAMESPACE::INode& node, GENAPI_NAMESPACE::IString& value);

    int32_t SetValue(const char* value) override;
    const char* GetValue(int32_t* error) override;

private:
    GENAPI_NAMESPACE::IString& m_value;
    std::string m_text; ///< what GetValue() returned last
};

class CommandParam final : public Command, public NodeParam
{
public:
    CommandParam(GENAPI_NAMESPACE::INode& node, GENAPI_NAMESPACE::ICommand& command);

    int32_t Execute() override;
    bool IsDone(int32_t* error) override;

private:
    GENAPI_NAMESPACE::ICommand& m_command;
};

} // namespace ZetoGenParam
