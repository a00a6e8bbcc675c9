#pragma once

#include "TestCase.h"

#include <QDialog>

#include <memory>

/// What holds for both forms that ask for an outside program and run it.
///
/// A test class derives from ProgramFormTest and gives the facts of its form; these functions then
/// run before its own.
class ProgramFormChecks : public TestCase
{
    Q_OBJECT

public:
    struct Facts
    {
        const char* name;    ///< Of the form.
        const char* title;   ///< Of the window.
        const char* program; ///< The label before the path.
        const char* slot;    ///< That Browse calls.
        const char* caption; ///< Of the file dialog.
    };

protected:
    explicit ProgramFormChecks(const Facts& facts);

    virtual QDialog* NewDialog() const = 0;

private Q_SLOTS:
    void TheFormHasAPathAndThreeButtons();
    void TabFollowsTheReadingOrder();
    void CloseRejects();
    void TheSlotsAreAsGiven();
    void TheFileDialogIsPlain();
    void TheCaptionReachesAHiddenDialogOnly();
    void TheChosenPathIsShown();
    void TheHostMayDestroyTheDialogBehindTheFileDialog();

private:
    Facts m_facts;
};

template<class Dialog>
class ProgramFormTest : public ProgramFormChecks
{
protected:
    using ProgramFormChecks::ProgramFormChecks;

private:
    QDialog* NewDialog() const override { return new Dialog(nullptr); }
};
