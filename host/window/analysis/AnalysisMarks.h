#pragma once

#include <QObject>

class AnalysisRecords;
class AnalysisTree;
class PartModel;
class PartView;

/// Shows the set-up in the view while its tree is visible: symbols at supports and loads, and the
/// faces and edges of the selected entry highlighted.
class AnalysisMarks : public QObject
{
    Q_OBJECT

public:
    /// @p view may be null. The others must outlive this object.
    AnalysisMarks(const AnalysisRecords& model, AnalysisTree& tree, const PartModel& part,
                  PartView* view, QObject* parent);
    ~AnalysisMarks() override;

    /// Shows the marks again after others have used the view.
    void Refresh();

private:
    void ShowSymbols();
    void ShowSelection();

    const AnalysisRecords& m_model;
    const AnalysisTree& m_tree;
    const PartModel& m_part;
    PartView* m_view;
    bool m_isShown = false;
};
