#include "MeasureTool.h"

#include "MenuActions.h"
#include "MessageLevel.h"
#include "PickedMeasures.h"
#include "ShapePicker.h"

#include <Standard_Failure.hxx>

MeasureTool::MeasureTool(const PartModel& model, ShapePicker& picker, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_picker(picker)
    , m_action(NewAction(tr("&Measure"), "action_Measure", this, &MeasureTool::Start,
                         QKeySequence(QStringLiteral("Ctrl+M"))))
{
}

MeasureTool::~MeasureTool() = default;

void MeasureTool::Start()
{
    ShapePicker::Request request;
    request.title = tr("Pick one or two faces or edges to measure:");
    request.done = [this](const ShapePicker::Choice& choice) {
        QStringList lines;
        try {
            lines = MeasurePicked(ShapePicker::ShapeOf(m_model, choice));
        } catch (const Standard_Failure&) {
            lines.clear();
        }
        if (lines.isEmpty())
            PostMessageToChannel(WarningLevel,
                                 tr("Nothing was measured: pick one or two faces or edges"));
        else
            PostMessageToChannel(InfoLevel, lines.join(QStringLiteral("; ")));
    };
    m_picker.Start(request);
}
