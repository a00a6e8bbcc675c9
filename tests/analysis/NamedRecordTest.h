#pragma once

#include "ModalDriver.h"
#include "TestCase.h"

#include <QDialog>

#include <memory>
#include <string>

/// What holds for both editors of a record whose name must not be taken, a support or a load.
///
/// A test class derives from NamedRecordTest; these functions then run before its own.
class NamedRecordChecks : public TestCase
{
    Q_OBJECT

protected:
    /// @p name is what the form starts with, @p refusal the box for one that is taken.
    NamedRecordChecks(const char* name, const ShownBox& refusal);

    const ShownBox& Duplicate() const { return m_refusal; }

    virtual std::unique_ptr<QDialog> NewEditor() const = 0;
    virtual std::string NameOf(const QDialog& editor) const = 0;

private Q_SLOTS:
    void OnePressOfOkAsksOnce();
    void TheRegistryIsNotWritten();
    void TheNameIsTakenAsTyped_data();
    void TheNameIsTakenAsTyped();
    void TheNameEndsAtTheFirstZero();
    void NamesAreBytesOfTheLocalCodePage_data();
    void NamesAreBytesOfTheLocalCodePage();
    void ATakenNameIsFoundByItsBytes();
    void EnterConfirmsFromEverywhere_data();
    void EnterConfirmsFromEverywhere();
    void OpeningAThousandTimesTakesNoMemory();

private:
    std::string m_name;
    ShownBox m_refusal;
};

template<class Editor>
class NamedRecordTest : public NamedRecordChecks
{
protected:
    using NamedRecordChecks::NamedRecordChecks;

    virtual std::string NameIn(const Editor& editor) const = 0;

private:
    std::unique_ptr<QDialog> NewEditor() const override
    {
        return std::make_unique<Editor>(nullptr);
    }
    std::string NameOf(const QDialog& editor) const override
    {
        return NameIn(static_cast<const Editor&>(editor));
    }
};
