#include "ExpressionNames.h"

#include <algorithm>
#include <functional>

namespace tarn {

namespace {

bool IsNameCharacter(QChar c)
{
    constexpr ushort FirstBeyondAscii = 0x80;
    return c.unicode() >= FirstBeyondAscii || c == QLatin1Char('_') || c.isLetterOrNumber();
}

bool IsDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool IsBlank(QChar c)
{
    return c == QLatin1Char(' ') || (c >= QLatin1Char('\t') && c <= QLatin1Char('\r'));
}

int EndOfDigits(const QString& text, int begin)
{
    while (begin < text.size() && IsDigit(text[begin]))
        ++begin;
    return begin;
}

int EndOfNumber(const QString& text, int begin)
{
    int end = EndOfDigits(text, begin);
    if (end < text.size() && text[end] == QLatin1Char('.'))
        end = EndOfDigits(text, end + 1);
    if (end == text.size() || (text[end] != QLatin1Char('e') && text[end] != QLatin1Char('E')))
        return end;
    const bool hasSign = end + 1 < text.size() &&
                         (text[end + 1] == QLatin1Char('-') || text[end + 1] == QLatin1Char('+'));
    const int exponent = hasSign ? end + 2 : end + 1;
    return EndOfDigits(text, exponent) > exponent ? EndOfDigits(text, exponent) : end;
}

bool IsCall(const QString& text, int end)
{
    while (end < text.size() && IsBlank(text[end]))
        ++end;
    return end < text.size() && text[end] == QLatin1Char('(');
}

// Calls @p visit with begin and length of each name of a value.
void VisitNames(const QString& text, const std::function<void(int, int)>& visit)
{
    for (int i = 0; i < text.size();) {
        const bool isNumber = IsDigit(text[i]) || (text[i] == QLatin1Char('.') &&
                                                   i + 1 < text.size() && IsDigit(text[i + 1]));
        int end = i + 1;
        if (isNumber) {
            end = EndOfNumber(text, i);
        } else if (IsNameCharacter(text[i])) {
            while (end < text.size() && IsNameCharacter(text[end]))
                ++end;
            if (!IsCall(text, end))
                visit(i, end - i);
        }
        i = end;
    }
}

} // namespace

bool IsExpressionName(const QString& text)
{
    bool isName = false;
    VisitNames(text, [&](int begin, int length) { isName = begin == 0 && length == text.size(); });
    return isName;
}

QStringList NamesIn(const QString& expression)
{
    QStringList names;
    QSet<QString> known;
    VisitNames(expression, [&](int begin, int length) {
        const QString name = expression.mid(begin, length);
        if (known.contains(name))
            return;
        known.insert(name);
        names << name;
    });
    return names;
}

QStringList ParametersIn(const QString& expression, const QSet<QString>& parameters)
{
    QStringList names = NamesIn(expression);
    const auto isConstant = [&parameters](const QString& name) {
        return !parameters.contains(name) &&
               (name == QLatin1String("pi") || name == QLatin1String("e"));
    };
    names.erase(std::remove_if(names.begin(), names.end(), isConstant), names.end());
    return names;
}

QString WithRenamed(const QString& expression, const QString& before, const QString& after)
{
    QString renamed;
    int done = 0;
    VisitNames(expression, [&](int begin, int length) {
        if (QStringView(expression).mid(begin, length) != before)
            return;
        renamed.append(expression.constData() + done, begin - done);
        renamed += after;
        done = begin + length;
    });
    return renamed + expression.mid(done);
}

} // namespace tarn
