#pragma once

#include <GenApi/Types.h>

#include <memory>
#include <vector>

namespace GENAPI_NAMESPACE {

/// A list of integers of fixed length. A copy shares the elements: what is written through one is seen
/// through the other.
class GENAPI_DECL int64_autovector_t
{
public:
    explicit int64_autovector_t();
    int64_autovector_t(const int64_autovector_t& other);
    /// \a n elements of value 0.
    explicit int64_autovector_t(size_t n);
    virtual ~int64_autovector_t();
    int64_autovector_t& operator=(const int64_autovector_t& other);

    const int64_t& operator[](size_t i) const;
    int64_t& operator[](size_t i);
    size_t size() const;

protected:
    std::shared_ptr<std::vector<int64_t>> m_pValues;
};

/// A list of floats of fixed length. A copy shares the elements: what is written through one is seen through
/// the other.
class GENAPI_DECL double_autovector_t
{
public:
    explicit double_autovector_t();
    double_autovector_t(const double_autovector_t& other);
    /// \a n elements of value 0.
    explicit double_autovector_t(size_t n);
    virtual ~double_autovector_t();
    double_autovector_t& operator=(const double_autovector_t& other);

    const double& operator[](size_t i) const;
    double& operator[](size_t i);
    size_t size() const;

protected:
    std::shared_ptr<std::vector<double>> m_pValues;
};

} // namespace GENAPI_NAMESPACE
