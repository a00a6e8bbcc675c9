#pragma once

#include <QString>

#include <stdexcept>

/// Why the host could not do something: one line in plain words. What failed tells its kind.
class HostError : public std::runtime_error
{
public:
    explicit HostError(const QString& reason)
        : std::runtime_error(reason.toStdString())
    {
    }

    QString Reason() const { return QString::fromUtf8(what()); }
};
