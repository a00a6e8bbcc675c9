#include "StepFile.h"

#include <IFSelect_ReturnStatus.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <QFile>
#include <QFileInfo>
#include <STEPControl_Writer.hxx>
#include <Standard_Failure.hxx>
#include <TopoDS_Shape.hxx>

#include <cstdio>

namespace {

// The last thing in every complete file.
const char EndMark[] = "END-ISO-10303-21;";

// The kernel tells its statistics on the console, which belongs to the host.
class QuietKernel
{
public:
    QuietKernel()
        : m_printers(Message::DefaultMessenger()->Printers())
    {
        Message::DefaultMessenger()->ChangePrinters().Clear();
    }
    ~QuietKernel() { Message::DefaultMessenger()->ChangePrinters() = m_printers; }
    Q_DISABLE_COPY(QuietKernel)

private:
    Message_SequenceOfPrinters m_printers;
};

[[noreturn]] void Fail(const QString& path, const QString& reason)
{
    throw StepError(QStringLiteral("%1: %2").arg(QFileInfo(path).fileName(), reason));
}

// The kernel does not say when the disk is full: only the file's end tells.
bool IsComplete(const QString& path)
{
    constexpr qint64 TailSize = 64;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) &&
           file.seek(std::max<qint64>(0, file.size() - TailSize)) &&
           file.readAll().contains(EndMark);
}

} // namespace

void WriteStepFile(const TopoDS_Shape& shape, const QString& path)
{
    const QString part = path + QStringLiteral(".part");
    const QByteArray partName = QFile::encodeName(part);
    try {
        const QuietKernel quiet;
        STEPControl_Writer writer;
        if (writer.Transfer(shape, STEPControl_AsIs) != IFSelect_RetDone)
            Fail(path, QStringLiteral("the kernel could not translate the part."));
        if (writer.Write(partName.constData()) != IFSelect_RetDone || !IsComplete(part)) {
            QFile::remove(part);
            Fail(path, QStringLiteral("the file could not be written."));
        }
    } catch (const Standard_Failure& failure) {
        QFile::remove(part);
        Fail(path, QStringLiteral("the geometry kernel failed: %1")
                       .arg(QString::fromLocal8Bit(failure.GetMessageString())));
    }
    // Not QFile::rename(), which replaces nothing.
    if (std::rename(partName.constData(), QFile::encodeName(path).constData()) != 0) {
        QFile::remove(part);
        Fail(path, QStringLiteral("the file could not be replaced."));
    }
}
