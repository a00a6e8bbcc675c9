#pragma once

#include <QList>
#include <QObject>

class QAction;
class QWidget;
class StudyResults;
class StudyTable;

/// Writes the runs and the plots of a study to files, and copies plots to the clipboard.
class StudyExport : public QObject
{
    Q_OBJECT

public:
    /// Table and results must outlive this object; @p window is behind its dialogs.
    StudyExport(StudyTable& table, StudyResults& results, QWidget* window, QObject* parent);
    ~StudyExport() override;

    QList<QAction*> Actions() const { return {m_export, m_exportPicture, m_copyPicture}; }

private:
    void UpdateActions();
    void ExportTable();
    void ExportPicture();
    void CopyPicture();
    void WriteExport(const QString& path, const QByteArray& content) const;

    StudyTable& m_table;
    StudyResults& m_results;
    QWidget* m_window;
    QAction* m_export;
    QAction* m_exportPicture;
    QAction* m_copyPicture;
};
