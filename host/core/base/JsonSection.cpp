#include "JsonSection.h"

#include "NumberTexts.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace {

// Nothing if it is neither a number nor a text.
std::optional<QString> ExpressionText(const QJsonValue& value)
{
    if (value.isDouble())
        return ExactText(value.toDouble());
    if (value.isString())
        return value.toString();
    return {};
}

} // namespace

QString Quoted(const QString& text)
{
    constexpr int MostCharacters = 60;
    const QString line = text.simplified();
    const QString shown =
        line.size() > MostCharacters ? line.left(MostCharacters) + QStringLiteral("...") : line;
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

JsonSection::JsonSection(QString place, const QJsonValue& value,
                         const std::vector<QLatin1String>& keys)
    : m_place(std::move(place))
    , m_object(value.toObject())
{
    if (!value.isObject())
        Fail(JsonError::tr("must be an object"));
    const QStringList found = m_object.keys();
    for (const QString& key : found) {
        if (std::find(keys.begin(), keys.end(), key) == keys.end())
            Fail(JsonError::tr("has the unknown entry %1").arg(Quoted(key)));
    }
}

QString JsonSection::Text(QLatin1String key, const QString& byDefault) const
{
    if (!Has(key))
        return byDefault;
    const QJsonValue value = m_object.value(key);
    if (!value.isString())
        FailAt(key, JsonError::tr("a text"));
    return value.toString();
}

QString JsonSection::GivenText(QLatin1String key) const
{
    if (!Has(key))
        Fail(JsonError::tr("has no \"%1\"").arg(key));
    return Text(key);
}

QString JsonSection::NeededText(QLatin1String key) const
{
    QString text = Text(key);
    if (text.isEmpty())
        Fail(JsonError::tr("has no \"%1\"").arg(key));
    return text;
}

double JsonSection::Number(QLatin1String key) const
{
    if (!Has(key))
        Fail(JsonError::tr("has no \"%1\"").arg(key));
    const QJsonValue value = m_object.value(key);
    if (!value.isDouble())
        FailAt(key, JsonError::tr("a number"));
    return value.toDouble();
}

bool JsonSection::Flag(QLatin1String key, bool byDefault) const
{
    if (!Has(key))
        return byDefault;
    const QJsonValue value = m_object.value(key);
    if (!value.isBool())
        FailAt(key, JsonError::tr("true or false"));
    return value.toBool();
}

QJsonArray JsonSection::Array(QLatin1String key) const
{
    const QJsonValue value = m_object.value(key);
    if (Has(key) && !value.isArray())
        FailAt(key, JsonError::tr("a list"));
    return value.toArray();
}

std::vector<double> JsonSection::Numbers(QLatin1String key) const
{
    std::vector<double> numbers;
    const QJsonArray array = Array(key);
    numbers.reserve(std::size_t(array.size()));
    for (const QJsonValue& value : array) {
        if (!value.isDouble())
            FailAt(key, JsonError::tr("a list of numbers"));
        numbers.push_back(value.toDouble());
    }
    return numbers;
}

QStringList JsonSection::Texts(QLatin1String key) const
{
    QStringList texts;
    const QJsonArray array = Array(key);
    for (const QJsonValue& value : array) {
        if (!value.isString())
            FailAt(key, JsonError::tr("a list of texts"));
        texts << value.toString();
    }
    return texts;
}

QString JsonSection::Expression(QLatin1String key, const QString& byDefault) const
{
    if (!Has(key))
        return byDefault;
    const std::optional<QString> text = ExpressionText(m_object.value(key));
    if (!text)
        FailAt(key, JsonError::tr("a number or an expression"));
    return *text;
}

std::array<QString, 3> JsonSection::Expressions(QLatin1String key) const
{
    std::array<QString, 3> texts;
    const QJsonArray array = Array(key);
    bool isComplete = array.size() == int(texts.size());
    for (std::size_t place = 0; isComplete && place < texts.size(); ++place) {
        const std::optional<QString> text = ExpressionText(array.at(int(place)));
        isComplete = text.has_value();
        texts[place] = text.value_or(QString());
    }
    if (!isComplete)
        FailAt(key, JsonError::tr("a list of three numbers or expressions"));
    return texts;
}

void JsonSection::Fail(const QString& what) const
{
    throw JsonError(m_place + QLatin1Char(' ') + what);
}

void JsonSection::FailAt(QLatin1String key, const QString& wanted) const
{
    Fail(JsonError::tr("has a \"%1\" that is not %2").arg(key, wanted));
}

QJsonValue ExpressionToJson(const QString& text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (isNumber && std::isfinite(value) && ExactText(value) == text)
        return value;
    return text;
}

QJsonArray ExpressionsToJson(const std::array<QString, 3>& texts)
{
    QJsonArray array;
    for (const QString& text : texts)
        array.append(ExpressionToJson(text));
    return array;
}
