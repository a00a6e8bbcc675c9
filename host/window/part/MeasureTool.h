#pragma once

#include <QObject>

class PartModel;
class QAction;
class ShapePicker;

/// Measures faces and edges that the user picks in the view, and posts the result to the message
/// channel.
class MeasureTool : public QObject
{
    Q_OBJECT

public:
    /// The model and the picker must outlive this object.
    MeasureTool(const PartModel& model, ShapePicker& picker, QObject* parent);
    ~MeasureTool() override;

    QAction* Action() const { return m_action; }

private:
    void Start();

    const PartModel& m_model;
    ShapePicker& m_picker;
    QAction* m_action;
};
