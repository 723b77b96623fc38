#include "valueparams.h"

#include "genparamerror.h"

using namespace GENAPI_NAMESPACE;
using GENICAM_NAMESPACE::gcstring;

namespace ZetoGenParam {

IntParam::IntParam(INode& node, IInteger& value)
    : NodeParam(node, TypeInt)
    , m_value(value)
{
}

int32_t IntParam::SetValue(int64_t value)
{
    return guardedCall([&] { m_value.SetValue(value); });
}

int64_t IntParam::GetValue(int32_t* error)
{
    return guardedGet(error, int64_t{0}, [&] { return m_value.GetValue(); });
}

int64_t IntParam::GetMin(int32_t* error)
{
    return guardedGet(error, int64_t{0}, [&] { return m_value.GetMin(); });
}

int64_t IntParam::GetMax(int32_t* error)
{
    return guardedGet(error, int64_t{0}, [&] { return m_value.GetMax(); });
}

int64_t IntParam::GetIncrement(int32_t* error)
{
    return guardedGet(error, int64_t{0}, [&] { return m_value.GetInc(); });
}

FloatParam::FloatParam(INode& node, IFloat& value)
    : NodeParam(node, TypeFloat)
    , m_value(value)
{
}

int32_t FloatParam::SetValue(double value)
{
    return guardedCall([&] { m_value.SetValue(value); });
}

double FloatParam::GetValue(int32_t* error)
{
    return guardedGet(error, 0.0, [&] { return m_value.GetValue(); });
}

double FloatParam::GetMin(int32_t* error)
{
    return guardedGet(error, 0.0, [&] { return m_value.GetMin(); });
}

double FloatParam::GetMax(int32_t* error)
{
    return guardedGet(error, 0.0, [&] { return m_value.GetMax(); });
}

double FloatParam::GetIncrement(int32_t* error)
{
    return guardedGet(error, 0.0, [&] { return m_value.HasInc() ? m_value.GetInc() : 0.0; });
}

BooleanParam::BooleanParam(INode& node, IBoolean& value)
    : NodeParam(node, TypeBoolean)
    , m_value(value)
{
}

int32_t BooleanParam::SetValue(bool value)
{
    return guardedCall([&] { m_value.SetValue(value); });
}

bool BooleanParam::GetValue(int32_t* error)
{
    return guardedGet(error, false, [&] { return m_value.GetValue(); });
}

StringParam::StringParam(INode& node, IString& value)
    : NodeParam(node, TypeString)
    , m_value(value)
{
}

int32_t StringParam::SetValue(const char* value)
{
    return guardedCall([&] { m_value.SetValue(gcstring(value ? value : "")); });
}

const char* StringParam::GetValue(int32_t* error)
{
    const AutoLock guard(lock());
    m_text = guardedGet(error, std::string(), [&] { return std::string(m_value.GetValue().c_str()); });
    return m_text.c_str();
}

CommandParam::CommandParam(INode& node, ICommand& command)
    : NodeParam(node, TypeCommand)
    , m_command(command)
{
}

int32_t CommandParam::Execute()
{
    return guardedCall([&] { m_command.Execute(); });
}

bool CommandParam::IsDone(int32_t* error)
{
    return guardedGet(error, true, [&] { return m_command.IsDone(); });
}

} // namespace ZetoGenParam
