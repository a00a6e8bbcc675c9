#include "KernelMessages.h"

#include "MessageLevel.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <QCoreApplication>

namespace {

class ChannelPrinter : public Message_Printer
{
protected:
    void send(const TCollection_AsciiString& text, const Message_Gravity gravity) const override
    {
        if (gravity < Message_Alarm)
            return;
        PostMessageToChannel(
            WarningLevel, QCoreApplication::translate("KernelMessages", "The geometry kernel: %1")
                              .arg(QString::fromLocal8Bit(text.ToCString())));
    }
};

} // namespace

void RouteKernelMessages()
{
    Message_SequenceOfPrinters& printers = Message::DefaultMessenger()->ChangePrinters();
    printers.Clear();
    printers.Append(new ChannelPrinter);
}
