#pragma once

#include "DrawerOutput.h"

#include <QString>

/// The meaning of the levels of the message channel in this host; the channel defines none.
/// Anything above ErrorLevel counts as an error, anything below InfoLevel as information.
enum MessageLevel
{
    InfoLevel = 0,    ///< An operation succeeded.
    WarningLevel = 1, ///< An operation succeeded, but not as requested.
    ErrorLevel = 2    ///< An operation failed.
};

/// Posts a finished text to the message channel.
inline void PostMessageToChannel(MessageLevel level, const QString& text)
{
    // Not as the format: a percent sign in a file name is not a conversion.
    DrawerOutput::GetInstance()->EmitMessage2MessageWidget(level, "%s",
                                                           text.toLocal8Bit().constData());
}
