#pragma once

#include <QColor>
#include <QImage>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <vector>

class ColumnBox;
class QHBoxLayout;
class QPainter;
class QVBoxLayout;
class ResultColumns;
class StudySelection;
class StudyTable;

/// A plot of the runs that a StudyTable shows, which shows and sets the shared selection. It is
/// brought up to date only while it is visible.
class StudyPlot : public QWidget
{
    Q_OBJECT

public:
    /// Table and selection must outlive the plot.
    StudyPlot(StudyTable& table, StudySelection& selection, QWidget* parent);
    ~StudyPlot() override;

    /// Brings the plot up to date now, also while it is hidden.
    void Refresh();

    /// Draws the plot, without its controls. A canvas of widgets is drawn as it stands.
    virtual void Paint(QPainter& painter, const QRect& area);

    /// The plot as it is shown, with @p scale pixels for each of the widget.
    QImage Picture(int scale = 2);
    /// The same as an SVG file. Points and lines of many runs are an image in it.
    QByteArray Svg();

    static QColor PointColor() { return {31, 119, 180}; }
    static QColor SelectedColor() { return {214, 39, 40}; }

protected:
    /// Takes the runs and columns of the table over. The selection is shown afterwards.
    virtual void ShowRows() = 0;
    virtual void ShowSelection() = 0;
    /// The part of the widget that Paint() draws.
    virtual QWidget& Canvas() = 0;

    const ResultColumns& Columns() const;
    const std::vector<int>& Rows() const;
    /// The parameters that the runs give values to.
    QStringList Inputs() const;
    /// The columns of those that vary.
    std::vector<int> VaryingInputs() const;
    /// The values of a column in Rows().
    std::vector<double> Shown(int column) const;
    bool IsSelected(int row) const;
    /// Whether @p painter draws into a file to which every run adds, and there are few enough.
    bool IsVector(const QPainter& painter) const;
    /// Replaces the shared selection, or adds to it while Shift or Ctrl is pressed.
    void Select(std::vector<int> rows);

    /// Above the plot.
    QHBoxLayout& Controls() { return *m_controls; }
    void SetCanvas(QWidget& canvas);
    /// The chosen column with its unit; empty for none.
    QString TitleOf(const ColumnBox& box) const;
    /// A choice of a column among the controls; a change of it calls ShowRows().
    ColumnBox& AddColumnBox(const QString& text, const char* name);

    /// Brings the plot up to date soon.
    void RefreshLater();
    void showEvent(QShowEvent* event) override;

private:
    StudyTable& m_table;
    StudySelection& m_selection;
    QVBoxLayout* m_layout;
    QHBoxLayout* m_controls;
    QTimer m_refresh;
    bool m_isOutdated = true;
};
