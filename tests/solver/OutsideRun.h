#pragma once

#include "ModalDriver.h"
#include "TestCase.h"

#include <QFile>
#include <QLineEdit>

/// What OutsideProgram does, while this lives.
class OutsideAction
{
public:
    explicit OutsideAction(const QByteArray& action) { qputenv(Name, action); }
    ~OutsideAction() { qunsetenv(Name); }

private:
    static constexpr const char* Name = "OUTSIDE_PROGRAM_ACTION";
};

/// Presses Browse and picks the path in the file dialog; an empty path cancels.
inline void Browse(QDialog& dialog, const QString& path)
{
    ModalDriver user;
    user.Then([&](QDialog& picker) {
        auto& name = Find<QLineEdit>(picker, "fileNameEdit");
        name.setText(path);
        QTest::keyClick(&name, path.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
    });
    Click(dialog, "pushButton_Browse");
    QVERIFY(user.IsDone());
}

/// Presses Run and gives the boxes that came up.
inline QVector<ShownBox> PressRun(QDialog& dialog)
{
    ModalDriver user;
    Click(dialog, "pushButton_Run");
    return user.Boxes();
}

/// What OutsideProgram wrote in the working directory.
inline QString RunRecord()
{
    QFile file(QStringLiteral("run.txt"));
    return file.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(file.readAll()) : QString();
}
