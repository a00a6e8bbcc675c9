#pragma once

#include "EmptyAttributeNames.h"
#include "FormTest.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <string>

/// The texts and the store of an editor of a named record.
struct RecordFacts
{
    const char* context; ///< Of the texts in messages.
    std::string name;    ///< The initial name in the form.
    QString refusal;     ///< The text of the box for a name that is taken.

    QString unset;    ///< The values of a new editor's record.
    QString accepted; ///< The values that OK stores at once.
    QString given;    ///< The values of the record that Give() passes.

    std::function<void(const QDialog&)> change; ///< Changes a value as a user does;
    QString changed;                            ///< the values that OK stores then.
};

/// Tests what the editors of supports and loads have in common: the name must not be taken.
///
/// A test class derives from NamedRecordTest; these functions then run before its own.
class NamedRecordChecks : public With<FormChecks, EmptyAttributeNames>
{
    Q_OBJECT

protected:
    NamedRecordChecks(FormFacts form, RecordFacts record);

    ShownBox Refusal() const { return ShownBox::Notice("Warning", m_record.refusal); }

    /// Registers a name, as another part of the host does.
    static void Register(const QByteArray& name);

    /// Passes a record named "given" to the editor.
    virtual void Give(QDialog& editor) const = 0;
    virtual std::string NameOf(const QDialog& editor) const = 0;
    /// The values of the editor's record as one text, without the name.
    virtual QString ValuesOf(const QDialog& editor) const = 0;

    void CompareAfterEnter(QDialog& editor) override;

private Q_SLOTS:
    void MessagesAreTranslatedInTheContextOfTheClass();
    void TheRecordIsInitiallyADefaultOne();
    void OKStoresTheDefaults();
    void LeavingKeepsTheRecord_data();
    void LeavingKeepsTheRecord();
    void ATakenNameIsRefusedEveryTime();
    void ARefusalKeepsTheGivenRecord();
    void OnePressOfOKShowsOneBox();
    void TheRegistryIsNotWritten();
    void TheNameIsTakenAsTyped_data();
    void TheNameIsTakenAsTyped();
    void TheNameEndsAtTheFirstZero();
    void NamesAreBytesOfTheLocalCodePage_data();
    void NamesAreBytesOfTheLocalCodePage();
    void ATakenNameIsFoundByItsBytes();

private:
    int Confirm(QDialog& editor);

    const RecordFacts m_record;
};

template<class Editor>
class NamedRecordTest : public NamedRecordChecks
{
protected:
    using NamedRecordChecks::NamedRecordChecks;

private:
    std::unique_ptr<QDialog> NewDialog(QDialog* parent) const override
    {
        return std::make_unique<Editor>(parent);
    }
};
