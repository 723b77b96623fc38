#include <GenApi/Autovector.h>

namespace GENAPI_NAMESPACE {

int64_autovector_t::int64_autovector_t()
    : int64_autovector_t(0)
{
}

int64_autovector_t::int64_autovector_t(size_t n)
    : m_pValues(std::make_shared<std::vector<int64_t>>(n))
{
}

int64_autovector_t::int64_autovector_t(const int64_autovector_t& other) = default;

int64_autovector_t::~int64_autovector_t() = default;

int64_autovector_t& int64_autovector_t::operator=(const int64_autovector_t& other) = default;

const int64_t& int64_autovector_t::operator[](size_t i) const
{
    return (*m_pValues)[i];
}

int64_t& int64_autovector_t::operator[](size_t i)
{
    return (*m_pValues)[i];
}

size_t int64_autovector_t::size() const
{
    return m_pValues->size();
}

double_autovector_t::double_autovector_t()
    : double_autovector_t(0)
{
}

double_autovector_t::double_autovector_t(size_t n)
    : m_pValues(std::make_shared<std::vector<double>>(n))
{
}

double_autovector_t::double_autovector_t(const double_autovector_t& other) = default;

double_autovector_t::~double_autovector_t() = default;

double_autovector_t& double_autovector_t::operator=(const double_autovector_t& other) = default;

const double& double_autovector_t::operator[](size_t i) const
{
    return (*m_pValues)[i];
}

double& double_autovector_t::operator[](size_t i)
{
    return (*m_pValues)[i];
}

size_t double_autovector_t::size() const
{
    return m_pValues->size();
}

} // namespace GENAPI_NAMESPACE
