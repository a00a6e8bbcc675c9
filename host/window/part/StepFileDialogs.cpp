#include "StepFileDialogs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(StepFileDialogs)
};

QString StepFilter()
{
    return Texts::tr("STEP files (*.step *.stp *.STEP *.STP);;All files (*)");
}

// The folder of the sample project is inside the program.
QString StartFolder(const QString& folder)
{
    return folder.startsWith(QLatin1Char(':')) ? QString() : folder;
}

} // namespace

QString AskForStepFile(QWidget* window, const QString& folder)
{
    const QString path = QFileDialog::getOpenFileName(window, Texts::tr("Import STEP"),
                                                      StartFolder(folder), StepFilter());
    const QString fromFolder = QDir(folder).relativeFilePath(path);
    const bool isBeside =
        !folder.isEmpty() && !path.isEmpty() && !fromFolder.startsWith(QStringLiteral(".."));
    return isBeside ? fromFolder : path;
}

QString AskForStepTarget(QWidget* window, const QString& folder)
{
    QFileDialog dialog(window, Texts::tr("Export STEP"), StartFolder(folder), StepFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("step"));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
