#pragma once

#include "DrawerOutput.h"
#include "EmptyDesignStores.h"
#include "FeatureTree.h"
#include "MainWindow.h"
#include "MenuUser.h"
#include "MessageLevel.h"
#include "ModalDriver.h"
#include "PartModel.h"
#include "Project.h"
#include "Tables.h"

#include <QFile>
#include <QLabel>
#include <QSignalSpy>
#include <QTableWidget>

/// The sample project in a main window of its own, as a user sees and drives it.
struct OpenWindow
{
    OpenWindow()
    {
        window.show();
        OpenProject(Project::SamplePath());
    }

    void OpenProject(const QString& path)
    {
        window.OpenProject(Project::Load(path));
        window.Part().WaitUntilIdle();
    }

    /// Also waits for the part that the action changes.
    void Trigger(const char* name)
    {
        ::Trigger(window, name);
        window.Part().WaitUntilIdle();
    }

    void SelectFeature(const QString& name)
    {
        window.Features().Select(name);
        QCOMPARE(window.Features().Selected(), QStringList(name));
    }

    QString Shown(const char* label) const { return Find<QLabel>(window, label).text(); }

    EmptyDesignStores stores;
    MainWindow window;
    ModalDriver user;
};

/// The messages that were posted since it was constructed.
class PostedMessages
{
public:
    /// In their order.
    QStringList At(MessageLevel level) const
    {
        QStringList texts;
        for (const QList<QVariant>& message : m_posted) {
            if (message[0].toInt() == level)
                texts << message[1].toString();
        }
        return texts;
    }

    int Count() const { return m_posted.count(); }

private:
    QSignalSpy m_posted{DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage};
};

inline double Stored(const QString& name)
{
    return GlobalParaMeterMgr::GetParameterRawValue(name).toDouble();
}

/// The row whose first cell has the text @p name, or -1.
inline int RowOf(const QTableWidget& table, const QString& name)
{
    for (int row = 0; row < table.rowCount(); ++row) {
        if (table.item(row, 0)->text() == name)
            return row;
    }
    return -1;
}

/// The columns of the parameter editor that tests use.
enum EditorColumn
{
    EditorName,
    EditorValue,
    EditorExpression = 3
};

/// Types the value of the parameter @p name into the parameter editor.
inline void TypeValue(QDialog& editor, const QString& name, const QString& value)
{
    auto& table = Find<QTableWidget>(editor, "tableWidget");
    TypeIntoCell(table, RowOf(table, name), EditorValue, value);
}

/// Selects a run in the dialog of the experiments and presses "Generate".
inline void Generate(QDialog& dialog, int row)
{
    auto& runs = Find<QTableWidget>(dialog, "tableWidget_Final");
    QTest::mouseClick(runs.viewport(), Qt::LeftButton, {},
                      runs.visualItemRect(runs.item(row, 0)).center());
    QCOMPARE(runs.currentRow(), row);
    Click(dialog, "pushButton_GenGeo");
}

inline QByteArray SampleProject()
{
    QFile file(Project::SamplePath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
