#pragma once

#include "DialogChecks.h"
#include "TestCase.h"

#include <QDialog>

#include <memory>

/// What holds for every small form that keeps its numbers on OK, and nothing on Cancel.
///
/// A test class derives from InputFormTest and gives the facts of its form; these functions then
/// run before its own.
class InputFormChecks : public TestCase
{
    Q_OBJECT

public:
    /// Values are texts as the test class writes them.
    struct Facts
    {
        QString slot;     ///< The only one: OK's.
        QString unset;    ///< The values before the first OK.
        QString defaults; ///< The values of the form as it opens.
        FieldTexts typed; ///< Other texts for all line edits, in the order of the Tab key,
        QString entered;  ///< and the values that they give.
    };

protected:
    explicit InputFormChecks(Facts facts);

    virtual std::unique_ptr<QDialog> NewDialog() const = 0;
    virtual QString ValuesOf(const QDialog& dialog) const = 0;

private Q_SLOTS:
    void TheFontIsSetOnTheDialog();
    void TabFollowsTheReadingOrder();
    void EnterConfirmsAndEscapeLeaves();
    void TheSlotsAreAsGiven();
    void OKStoresTheDefaults();
    void OKStoresTheFields();
    void CancelStoresNothing();

private:
    Facts m_facts;
};

/// The values are those of @p Dialog, as its getters give them.
template<class Dialog>
class InputFormTest : public InputFormChecks
{
protected:
    using InputFormChecks::InputFormChecks;

    virtual QString Values(const Dialog& dialog) const = 0;

private:
    std::unique_ptr<QDialog> NewDialog() const override
    {
        return std::make_unique<Dialog>(nullptr);
    }
    QString ValuesOf(const QDialog& dialog) const override
    {
        return Values(static_cast<const Dialog&>(dialog));
    }
};
