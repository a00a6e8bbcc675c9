#pragma once

#include <QSettings>

/// The settings of the user, kept between sessions: one file for the whole program.
class UserSettings : public QSettings
{
public:
    UserSettings()
        : QSettings(IniFormat, UserScope, QStringLiteral("tarnhost"), QStringLiteral("tarnhost"))
    {
    }
};
