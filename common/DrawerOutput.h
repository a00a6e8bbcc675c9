#pragma once

#include "tarnguicommon_export.h"

#include <QObject>
#include <QString>

/// The process-wide message channel: any code can post a line with a level, and the host shows it.
///
///     connect(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage, ...);
///     DrawerOutput::GetInstance()->EmitMessage2MessageWidget(2, "%s: %d", "mesh", 12);
///
/// Formats are those of printf, in the local 8-bit code page and with the full stop as decimal
/// sign under every locale. Texts are truncated to 1,023 bytes, without splitting a character. The
/// host defines the meaning of the levels. GUI thread only.
class TARNGUICOMMON_EXPORT DrawerOutput : public QObject
{
    Q_OBJECT

public:
    /// The channel, created by the first call. The library never deletes it. If the host deletes
    /// it, it must not call GetInstance() again.
    static DrawerOutput* GetInstance();

    ~DrawerOutput() override;

    /// Formats a line and emits it with MessageWidgetMessage() and the given @p level.
    void EmitMessage2MessageWidget(int level, const char* format, ...)
        Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);

    /// Formats a text in the same way and returns it without emitting it.
    static QString GetQStringFromChar(const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(1, 2);

Q_SIGNALS:
    /// A line was posted, with its unchanged level and the formatted text.
    void MessageWidgetMessage(int nLevel, QString str);

private:
    DrawerOutput();
    Q_DISABLE_COPY(DrawerOutput)

    static DrawerOutput* m_ConnectorInstance;
};
