#include "ExpressionEngine.h"

#include "ExpressionError.h"
#include "ExpressionProgram.h"
#include "ExpressionText.h"
#include "ExpressionTranslator.h"

#include <QByteArray>
#include <QCache>
#include <QTextCodec>

#include <limits>
#include <memory>
#include <optional>
#include <utility>

namespace {

// No code page takes more than four bytes for a character.
constexpr std::size_t MaxBytes = 4 * std::size_t(ExpressionTranslator::MaxCharacters);

// The cost of a kept program is the length of its text and this, so that neither many short nor
// a few long expressions take too much memory: it holds some 10,000 expressions of usual length.
constexpr int BaseCost = 64;
constexpr int MaxCost = 1 << 20;
static_assert(BaseCost + MaxBytes < MaxCost, "every expression that is compiled can be kept");

/// A compiled expression and the code page in which its text was read.
struct KeptProgram
{
    KeptProgram(ExpressionFormula formula, const QTextCodec* textCodec)
        : program(std::move(formula))
        , codec(textCodec)
    {
    }

    ExpressionProgram program;
    const QTextCodec* codec; // Null for a text that is the same in all of them.
};

QCache<QByteArray, KeptProgram>& KeptPrograms()
{
    static QCache<QByteArray, KeptProgram> programs(MaxCost);
    return programs;
}

QString& ErrorText()
{
    static QString text;
    return text;
}

ExpressionProgram* Compile(const std::string& expression, ExpressionError& error)
{
    if (expression.size() > MaxBytes) {
        error = ExpressionTranslator::TooLong();
        return nullptr;
    }
    // Which of its names are variables is settled at each evaluation, so the text is the whole key.
    const auto key = QByteArray::fromRawData(expression.data(), int(expression.size()));
    const QTextCodec* const codec =
        ExpressionText::IsAscii(expression) ? nullptr : QTextCodec::codecForLocale();
    if (KeptProgram* const kept = KeptPrograms().object(key)) {
        if (kept->codec == codec)
            return &kept->program;
    }

    const ExpressionText text(expression);
    ExpressionTranslator translator(text);
    std::optional<ExpressionFormula> formula = translator.Translate();
    if (!formula) {
        error = translator.Error();
        return nullptr;
    }
    auto compiled = std::make_unique<KeptProgram>(std::move(*formula), codec);
    // The key is copied: the caller's bytes do not last.
    const QByteArray ownKey(expression.data(), int(expression.size()));
    KeptPrograms().insert(ownKey, compiled.release(), BaseCost + ownKey.size());
    return &KeptPrograms().object(ownKey)->program;
}

} // namespace

double ExpressionEngine::CalculateExpress(const std::string& expression,
                                          std::map<std::string, double>& variables)
{
    ExpressionError error;
    try {
        if (ExpressionProgram* const program = Compile(expression, error)) {
            if (const std::optional<double> value = program->Evaluate(variables, error)) {
                ErrorText().clear();
                return *value;
            }
        }
    } catch (...) {
        // The parser's own errors, which no formula should cause, and lack of memory.
        error = {1, ExpressionError::tr("the expression cannot be evaluated")};
    }
    ErrorText() = error.Text();
    return std::numeric_limits<double>::quiet_NaN();
}

QString ExpressionEngine::LastError()
{
    return ErrorText();
}
