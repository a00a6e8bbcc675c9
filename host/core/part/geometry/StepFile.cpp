#include "StepFile.h"

#include "KernelSignals.h"
#include "Limits.h"
#include "WholeFile.h"

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
#include <StepData_Protocol.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_StepWriter.hxx>
#include <TopoDS_Shape.hxx>
#include <XSControl_WorkSession.hxx>

#include <cmath>
#include <sstream>

namespace {

// The beginning and the end of every complete file.
const char BeginMark[] = "ISO-10303-21;";
const char EndMark[] = "END-ISO-10303-21;";

// Keeps the kernel's statistics off the console, which belongs to the host.
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

[[noreturn]] void FailInKernel(const QString& path, const Standard_Failure& failure)
{
    Fail(path, StepError::tr("the geometry kernel failed: %1")
                   .arg(QString::fromLocal8Bit(failure.GetMessageString())));
}

QByteArray ReadContent(const QString& path)
{
    constexpr int HeadSize = 1024;
    constexpr int TailSize = 64;
    tarn::WholeFile file(path);
    QByteArray content;
    if (!file.Read(content))
        Fail(path, file.Error());
    if (!content.left(HeadSize).contains(BeginMark))
        Fail(path, StepError::tr("is not a STEP file"));
    if (!content.right(TailSize).contains(EndMark))
        Fail(path, StepError::tr("is incomplete"));
    return content;
}

void CheckExtent(const TopoDS_Shape& shape, const QString& path)
{
    Bnd_Box box;
    BRepBndLib::Add(shape, box);
    if (box.IsVoid())
        Fail(path, StepError::tr("contains no shape"));
    for (const gp_Pnt& corner : {box.CornerMin(), box.CornerMax()}) {
        for (int axis = 1; axis <= 3; ++axis) {
            // Negated, so that NaN is refused as well.
            if (!(std::abs(corner.Coord(axis)) <= MaximumLength))
                Fail(path, StepError::tr("contains a shape that extends beyond 1000 m"));
        }
    }
}

TopoDS_Shape ReadShape(const QString& path, const QByteArray& content)
{
    STEPControl_Reader reader;
    std::istringstream stream(content.toStdString());
    if (reader.ReadStream(QFile::encodeName(path).constData(), stream) != IFSelect_RetDone)
        Fail(path, StepError::tr("cannot be read as a STEP file"));
    reader.TransferRoots();
    TopoDS_Shape shape = reader.OneShape();
    if (shape.IsNull())
        Fail(path, StepError::tr("contains no shape"));
    CheckExtent(shape, path);
    return shape;
}

// Not STEPControl_Writer::Write(), which does not notice a full disk.
bool Print(STEPControl_Writer& writer, std::ostream& stream)
{
    StepData_StepWriter text(writer.Model());
    text.SendModel(Handle(StepData_Protocol)::DownCast(writer.WS()->Protocol()));
    return text.Print(stream);
}

} // namespace

TopoDS_Shape ReadStepFile(const QString& path)
{
    const QByteArray content = ReadContent(path);
    try {
        const QuietKernel quiet;
        return GuardKernelCall([&] { return ReadShape(path, content); });
    } catch (const Standard_Failure& failure) {
        FailInKernel(path, failure);
    }
}

void WriteStepFile(const TopoDS_Shape& shape, const QString& path)
{
    std::ostringstream stream;
    try {
        const QuietKernel quiet;
        STEPControl_Writer writer;
        if (writer.Transfer(shape, STEPControl_AsIs) != IFSelect_RetDone || !Print(writer, stream))
            Fail(path, StepError::tr("the geometry kernel cannot translate the part"));
    } catch (const Standard_Failure& failure) {
        FailInKernel(path, failure);
    }
    tarn::WholeFile file(path);
    if (!file.Write(QByteArray::fromStdString(stream.str())))
        Fail(path, file.Error());
}
