#pragma once

#include <QString>

#include <stdexcept>

/// The reason why the host could not do something: one line. A subclass exists only where a
/// caller treats some reasons differently from others.
class HostError : public std::runtime_error
{
public:
    explicit HostError(const QString& reason)
        : std::runtime_error(reason.toStdString())
    {
    }

    QString Reason() const { return QString::fromUtf8(what()); }
};
