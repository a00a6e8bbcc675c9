#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

/// While it lives, windows that are made speak one language: the library's dialogs, the host's own
/// windows, and the toolkit's buttons, where its translations are installed.
///
/// Needs an application object, and ends before it. What the program writes into files is the same
/// in every language.
class Language
{
public:
    /// @p name is one of Known().
    explicit Language(const QString& name);
    ~Language();
    Q_DISABLE_COPY(Language)

    /// The languages there are, by name of their locale: "en" and "zh_CN".
    static QStringList Known();

    /// The first of the @p wanted languages that is known, whatever its country and script; English
    /// when none is. The user's wishes are `QLocale::system().uiLanguages()`.
    static QString BestOf(const QStringList& wanted);

private:
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
