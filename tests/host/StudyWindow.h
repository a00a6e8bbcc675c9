#pragma once

#include "FlangeStudy.h"
#include "OpenWindow.h"
#include "StudyTable.h"
#include "StudyTableView.h"

#include <QDir>
#include <QDockWidget>
#include <QPushButton>

/// @file
/// A study in the main window, as a user runs it.

constexpr int Patience = 120000; // ms

/// A window with a project of its own, and the study's panel.
struct StudyWindow : OpenWindow
{
    explicit StudyWindow(const QString& folder, const QByteArray& bores = "[60, 70]")
        : StudyWindow(folder, "p.json", Flange(bores))
    {
    }
    StudyWindow(const QString& folder, const QString& name, const QByteArray& project)
    {
        const QString path = QDir(folder).filePath(name);
        Put(path, project);
        OpenProject(path);
        window.findChild<QDockWidget*>("studyDock")->show();
        DeliverEvents();
    }

    StudyTableView& View() const { return Find<StudyTableView>(window, "studyTableView"); }
    const StudyTable& Table() const { return static_cast<StudyTable&>(*View().model()); }
    QPushButton& Start() const { return Find<QPushButton>(window, "pushButton_Start"); }
    int Count() const { return Table().Columns().Count(); }

    void ClickCell(int row, int column) const
    {
        View().scrollTo(View().model()->index(row, column));
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {},
                          View().visualRect(View().model()->index(row, column)).center());
    }
    QString Cell(int row, int column) const
    {
        return View().model()->index(row, column).data().toString();
    }
    void RunToTheEnd() const
    {
        Click(window, "pushButton_Start");
        QVERIFY(!Start().isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(Start().isEnabled(), Patience);
    }
};

inline int ColumnOf(const StudyTable& table, const QString& name)
{
    for (int column = 0; column < table.columnCount(); ++column) {
        if (table.headerData(column, Qt::Horizontal).toString() == name)
            return column;
    }
    return -1;
}
