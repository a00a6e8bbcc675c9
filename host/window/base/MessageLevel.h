#pragma once

#include "DrawerOutput.h"

#include <QString>

/// What this host means by the levels of the message channel; the channel itself has no opinion.
/// Anything above ErrorLevel counts as an error, anything below InfoLevel as information.
enum MessageLevel
{
    InfoLevel = 0,    ///< Something was done.
    WarningLevel = 1, ///< Something was done, but not as asked.
    ErrorLevel = 2    ///< Something could not be done.
};

/// Posts a finished text to the message channel.
inline void PostMessageToChannel(MessageLevel level, const QString& text)
{
    // Never as the format itself: a per cent sign in a file name is no conversion.
    DrawerOutput::GetInstance()->EmitMessage2MessageWidget(level, "%s",
                                                           text.toLocal8Bit().constData());
}
