#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

/// While it lives, new windows use one language: the library's dialogs, the host's own windows, and
/// the toolkit's buttons if its translations are installed.
///
/// Requires an application object that outlives it. Files have the same content in every language.
class Language
{
public:
    /// @p name is one of Known().
    explicit Language(const QString& name);
    ~Language();
    Q_DISABLE_COPY(Language)

    /// The language that is used now.
    static QString Current();

    /// The available languages, as locale names: "en" and "zh_CN".
    static QStringList Known();

    /// The first of the @p wanted languages that is known, whatever its country and script, or
    /// English. `QLocale::system().uiLanguages()` lists the languages that the user wants.
    static QString BestOf(const QStringList& wanted);

private:
    QString m_name;
    const Language* m_outer; // The one that was used before.
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
