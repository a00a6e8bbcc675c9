#include "Language.h"

#include "BuiltInFiles.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace {

const Language* s_current = nullptr;

}

Language::Language(const QString& name)
    : m_name(name)
    , m_outer(s_current)
{
    s_current = this;
    const QString own = BuiltInPath(QStringLiteral("translations"));
    const auto add = [this, &name](const QString& texts, const QString& directory) {
        auto translator = std::make_unique<QTranslator>();
        // There is no file for English: the source texts are English.
        if (!translator->load(texts + QLatin1Char('_') + name, directory))
            return;
        QCoreApplication::installTranslator(translator.get());
        m_translators.push_back(std::move(translator));
    };
    add(QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    add(QStringLiteral("TarnGUICommon"), own);
    add(QStringLiteral("tarnhost"), own);
}

// A translator removes itself from the application when it is destroyed.
Language::~Language()
{
    s_current = m_outer;
}

QString Language::Current()
{
    return s_current == nullptr ? Known().constFirst() : s_current->m_name;
}

QStringList Language::Known()
{
    return {QStringLiteral("en"), QStringLiteral("zh_CN")};
}

QString Language::BestOf(const QStringList& wanted)
{
    const QStringList known = Known();
    for (const QString& wish : wanted) {
        for (const QString& name : known) {
            if (QLocale(wish).language() == QLocale(name).language())
                return name;
        }
    }
    return known.first();
}
