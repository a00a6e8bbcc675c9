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
#include <StepBasic_Product.hxx>
#include <StepData_Protocol.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_StepWriter.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TopoDS_Shape.hxx>
#include <XSControl_WorkSession.hxx>

#include <APIHeaderSection_MakeHeader.hxx>

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

// The kernel writes the time, and numbers the products of the process: the same part would never
// give the same file.
void RemoveTimeAndCounters(const Handle(StepData_StepModel) & model)
{
    APIHeaderSection_MakeHeader header(model);
    header.SetTimeStamp(new TCollection_HAsciiString("1970-01-01T00:00:00"));
    int products = 0;
    int uses = 0;
    for (int i = 1; i <= model->NbEntities(); ++i) {
        const auto product = Handle(StepBasic_Product)::DownCast(model->Value(i));
        const auto use = Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(model->Value(i));
        if (!product.IsNull()) {
            const TCollection_AsciiString name =
                TCollection_AsciiString("Part ") + TCollection_AsciiString(++products);
            product->SetName(new TCollection_HAsciiString(name));
            product->SetId(new TCollection_HAsciiString(name));
        } else if (!use.IsNull()) {
            use->SetId(new TCollection_HAsciiString(TCollection_AsciiString(++uses)));
        }
    }
}

} // namespace

QByteArray StepText(const TopoDS_Shape& shape)
{
    const QuietKernel quiet;
    ApplySettings();
    STEPControl_Writer writer;
    // Not STEPControl_Writer::Write(), which does not notice a full disk.
    if (writer.Transfer(shape, STEPControl_AsIs) == IFSelect_RetDone) {
        RemoveTimeAndCounters(writer.Model());
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
