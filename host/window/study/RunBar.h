#pragma once

#include <QFrame>

class DesignModel;

/// A line above the view while the parameters are those of a run: says so, and leads back to the
/// design.
class RunBar : public QFrame
{
    Q_OBJECT

public:
    /// The model must outlive the bar.
    RunBar(DesignModel& design, QWidget* parent);
    ~RunBar() override;

Q_SIGNALS:
    void BackWanted();
};
