#include "StepFile.h"

#include <BRepBndLib.hxx>
#include <Bnd_Box.hxx>
#include <IFSelect_ReturnStatus.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <QFile>
#include <QFileInfo>
#include <STEPControl_Reader.hxx>
#include <STEPControl_Writer.hxx>
#include <Standard_Failure.hxx>
#include <TopoDS_Shape.hxx>

#include <cmath>
#include <cstdio>

namespace {

// The first and the last thing in every complete file.
const char BeginMark[] = "ISO-10303-21;";
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
bool EndsComplete(const QString& path)
{
    constexpr qint64 TailSize = 64;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) &&
           file.seek(std::max<qint64>(0, file.size() - TailSize)) &&
           file.readAll().contains(EndMark);
}

// The kernel would read a whole disk image before it said anything.
void CheckFile(const QString& path)
{
    constexpr qint64 MostMegabytes = 256;
    constexpr qint64 HeadSize = 1024;
    if (QFileInfo(path).isDir())
        Fail(path, StepError::tr("it is a folder, not a file."));
    // Opening a pipe would wait for whoever writes into it.
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        Fail(path, StepError::tr("it is no STEP file."));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        Fail(path, StepError::tr("it cannot be opened: %1.").arg(file.errorString()));
    if (!file.read(HeadSize).contains(BeginMark))
        Fail(path, StepError::tr("it is no STEP file."));
    if (file.size() > MostMegabytes << 20)
        Fail(path, StepError::tr("it is larger than %1 MB.").arg(MostMegabytes));
    if (!EndsComplete(path))
        Fail(path, StepError::tr("it is not complete."));
}

void CheckExtent(const TopoDS_Shape& shape, const QString& path)
{
    constexpr double Farthest = 1e6; // mm
    Bnd_Box box;
    BRepBndLib::Add(shape, box);
    if (box.IsVoid())
        Fail(path, StepError::tr("there is no shape in it."));
    for (const gp_Pnt& corner : {box.CornerMin(), box.CornerMax()}) {
        for (int axis = 1; axis <= 3; ++axis) {
            // Written so that what is no number is refused too.
            if (!(std::abs(corner.Coord(axis)) <= Farthest))
                Fail(path, StepError::tr("its shape reaches farther than 1000 m."));
        }
    }
}

} // namespace

TopoDS_Shape ReadStepFile(const QString& path)
{
    CheckFile(path);
    try {
        const QuietKernel quiet;
        STEPControl_Reader reader;
        if (reader.ReadFile(QFile::encodeName(path).constData()) != IFSelect_RetDone)
            Fail(path, StepError::tr("it cannot be read as a STEP file."));
        reader.TransferRoots();
        TopoDS_Shape shape = reader.OneShape();
        if (shape.IsNull())
            Fail(path, StepError::tr("there is no shape in it."));
        CheckExtent(shape, path);
        return shape;
    } catch (const Standard_Failure& failure) {
        Fail(path, StepError::tr("the geometry kernel failed: %1")
                       .arg(QString::fromLocal8Bit(failure.GetMessageString())));
    }
}

void WriteStepFile(const TopoDS_Shape& shape, const QString& path)
{
    const QString part = path + QStringLiteral(".part");
    const QByteArray partName = QFile::encodeName(part);
    try {
        const QuietKernel quiet;
        STEPControl_Writer writer;
        if (writer.Transfer(shape, STEPControl_AsIs) != IFSelect_RetDone)
            Fail(path, StepError::tr("the kernel could not translate the part."));
        if (writer.Write(partName.constData()) != IFSelect_RetDone || !EndsComplete(part)) {
            QFile::remove(part);
            Fail(path, StepError::tr("the file could not be written."));
        }
    } catch (const Standard_Failure& failure) {
        QFile::remove(part);
        Fail(path, StepError::tr("the geometry kernel failed: %1")
                       .arg(QString::fromLocal8Bit(failure.GetMessageString())));
    }
    // Not QFile::rename(), which replaces nothing.
    if (std::rename(partName.constData(), QFile::encodeName(path).constData()) != 0) {
        QFile::remove(part);
        Fail(path, StepError::tr("the file could not be replaced."));
    }
}
