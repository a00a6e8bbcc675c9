#include "StepText.h"

#include "EdgeCurves.h"
#include "StepCheck.h"
#include "StepError.h"

#include <BRepCheck_Analyzer.hxx>
#include <IFSelect_ReturnStatus.hxx>
#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <QtGlobal>
#include <STEPControl_Controller.hxx>
#include <STEPControl_Reader.hxx>
#include <STEPControl_Writer.hxx>
#include <ShapeFix_Shape.hxx>
#include <StepData_Protocol.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_StepWriter.hxx>
#include <TopoDS_Shape.hxx>
#include <XSControl_WorkSession.hxx>

#include <sstream>

namespace {

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

// The settings are global to the process. The kernel reads back some bodies wrongly from the curves
// in the parameters of their faces: such curves are neither written nor used, and are calculated
// from the curves in space.
void ApplySettings()
{
    STEPControl_Controller::Init();
    constexpr int WithoutParameterCurves = 0;
    Interface_Static::SetIVal("write.surfacecurve.mode", WithoutParameterCurves);
    constexpr int OnlyCurvesInSpace = 3;
    Interface_Static::SetIVal("read.surfacecurve.mode", OnlyCurvesInSpace);
}

// The reader leaves small faults in some shapes, such as curves that miss a vertex.
TopoDS_Shape Mended(const TopoDS_Shape& shape)
{
    if (BRepCheck_Analyzer(shape).IsValid())
        return shape;
    ShapeFix_Shape fix(shape);
    fix.Perform();
    return fix.Shape();
}

} // namespace

QByteArray StepText(const TopoDS_Shape& shape)
{
    const QuietKernel quiet;
    ApplySettings();
    STEPControl_Writer writer;
    // Not STEPControl_Writer::Write(), which does not notice a full disk.
    if (writer.Transfer(shape, STEPControl_AsIs) == IFSelect_RetDone) {
        std::ostringstream stream;
        StepData_StepWriter text(writer.Model());
        text.SendModel(Handle(StepData_Protocol)::DownCast(writer.WS()->Protocol()));
        if (text.Print(stream))
            return QByteArray::fromStdString(stream.str());
    }
    throw StepError(StepError::tr("the geometry kernel cannot translate the part"));
}

TopoDS_Shape ShapeFromStep(const QByteArray& text)
{
    const QuietKernel quiet;
    ApplySettings();
    CheckStepReferences(text);
    STEPControl_Reader reader;
    std::istringstream stream(text.toStdString());
    if (reader.ReadStream("", stream) != IFSelect_RetDone)
        throw StepError(StepError::tr("cannot be read as a STEP file"));
    CheckStepEntities(*reader.WS());
    reader.TransferRoots();
    CheckStepFaces(*reader.WS());
    TopoDS_Shape shape = reader.OneShape();
    CheckStepBodies(shape);
    RefineEdgeCurves(shape);
    return Mended(shape);
}
