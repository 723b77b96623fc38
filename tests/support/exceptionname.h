#pragma once

#include <GenApi/GenApi.h>

#include <QString>

#include <exception>

/// The kind of exception that \a action ends with: "Access", "OutOfRange", ..., "std", or empty for none.
template <class Action>
QString exceptionName(Action action)
{
    try {
        action();
        return {};
    } catch (const GenICam::AccessException&) {
        return QStringLiteral("Access");
    } catch (const GenICam::OutOfRangeException&) {
        return QStringLiteral("OutOfRange");
    } catch (const GenICam::InvalidArgumentException&) {
        return QStringLiteral("InvalidArgument");
    } catch (const GenICam::LogicalErrorException&) {
        return QStringLiteral("LogicalError");
    } catch (const GenICam::RuntimeException&) {
        return QStringLiteral("Runtime");
    } catch (const GenICam::TimeoutException&) {
        return QStringLiteral("Timeout");
    } catch (const GenICam::GenericException&) {
        return QStringLiteral("Generic");
    } catch (const std::exception&) {
        return QStringLiteral("std");
    }
}
