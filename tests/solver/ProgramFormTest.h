#pragma once

#include "FormTest.h"

#include <QDialog>

/// A form that runs an external program, with the names of its widgets.
struct ProgramFacts
{
    const char* form;    ///< Name of the form.
    const char* title;   ///< Of the window.
    const char* program; ///< The label before the path.
    const char* slot;    ///< Called by Browse.
    const char* caption; ///< Of the file dialog.
    const char* model;   ///< The file that the program is given.
    ShownBoxes ending;   ///< The boxes after a normal end.
};

/// Tests what the two forms that ask for an external program and run it have in common.
///
/// A test class derives from ProgramFormTest and passes the facts of its form; these functions then
/// run before its own.
class ProgramFormChecks : public With<FormChecks, TemporaryDirectory>
{
    Q_OBJECT

protected:
    explicit ProgramFormChecks(const ProgramFacts& facts);

    /// A dialog on the screen with OutsideProgram as its program.
    std::unique_ptr<QDialog> NewDialogWithProgram() const;

    void CompareAfterEnter(QDialog& dialog) override;

private Q_SLOTS:
    void CloseRejects();
    void TheFileDialogIsPlain();
    void OnlyAHiddenFileDialogHasTheCaption();
    void TheChosenPathIsShown();
    void CancellingTheFileDialogClearsThePath();
    void TheHostMayDestroyTheDialogWhileTheFileDialogIsOpen();
    void TheProgramRunsOnTheModelInTheWorkingDirectory();
    void EveryEndIsReportedAsDesigned_data();
    void EveryEndIsReportedAsDesigned();
    void AProgramThatCannotStartIsReportedAsDesigned_data();
    void AProgramThatCannotStartIsReportedAsDesigned();
    void TheRunLastsUntilTheProgramEnds();
    void TheRunHasNoTimeLimit();
    void TheOutputIsNotKept();

private:
    const ProgramFacts m_program;
};

template<class Dialog>
class ProgramFormTest : public ProgramFormChecks
{
protected:
    using ProgramFormChecks::ProgramFormChecks;

private:
    std::unique_ptr<QDialog> NewDialog(QDialog* parent) const override
    {
        return std::make_unique<Dialog>(parent);
    }
};
