#pragma once

#include <GenApi/GenApi.h>

#include <QString>

#include <optional>
#include <utility>

/// Calls into GenApi go through one of the two guards below: GenericException is no std::exception, and the
/// transport's own errors arrive through every call. Nothing that a node map throws passes them.

/// The reason of the exception that is being handled, never empty. Only for use in a catch block.
QString currentGenApiError();

/// Runs \a call. \return nothing when it succeeded, otherwise the reason, which is never empty.
template <typename Call>
std::optional<QString> genApiFault(Call&& call)
{
    try {
        std::forward<Call>(call)();
        return std::nullopt;
    } catch (...) {
        return currentGenApiError();
    }
}

/// The result of \a call, or \a fallback when it throws: for what can be left out without a word.
template <typename Result, typename Call>
Result genApiOr(Result fallback, Call&& call)
{
    try {
        return std::forward<Call>(call)();
    } catch (...) {
        return fallback;
    }
}

/// The node of \a value; throws when it has none.
GenApi::INode& nodeOf(GenApi::IValue& value);

/// GenApi texts are UTF-8.
QString fromGenApi(const GenICam::gcstring& text);
GenICam::gcstring toGenApi(const QString& text);
