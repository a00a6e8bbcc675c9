#pragma once

#include "tarnguicommon_export.h"

#include <QObject>
#include <QString>

/// The process-wide message channel: any code posts a levelled line, the host's widget shows it.
///
///     connect(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage, ...);
///     DrawerOutput::GetInstance()->EmitMessage2MessageWidget(2, "%s: %d", "mesh", 12);
///
/// Formats are those of printf, in the local 8-bit code page and with the full stop as decimal
/// sign under every locale. A text is cut, between two characters, at 1,023 bytes. The meaning of
/// the levels is the host's. GUI thread only.
class TARNGUICOMMON_EXPORT DrawerOutput : public QObject
{
    Q_OBJECT

public:
    /// The one channel, made by the first call. The library never deletes it; a host that does
    /// must not call GetInstance() again.
    static DrawerOutput* GetInstance();

    ~DrawerOutput() override;

    /// Formats a line and emits it as MessageWidgetMessage() with the given @p level.
    void EmitMessage2MessageWidget(int level, const char* format, ...)
        Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);

    /// Formats a text in the same way and returns it; nothing is emitted.
    static QString GetQStringFromChar(const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(1, 2);

Q_SIGNALS:
    /// A line was posted: its level, passed through untouched, and the finished text.
    void MessageWidgetMessage(int nLevel, QString str);

private:
    DrawerOutput();
    Q_DISABLE_COPY(DrawerOutput)

    static DrawerOutput* m_ConnectorInstance;
};
