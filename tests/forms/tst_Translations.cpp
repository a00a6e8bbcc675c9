#include "TestCase.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

// Compares the translation files with the texts of the sources.
class tst_Translations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ChineseIsComplete_data();
    void ChineseIsComplete();
    void EnglishCoversTheTextsThatAreNotEnglish();
    void ATranslationKeepsItsPlaceholders_data();
    void ATranslationKeepsItsPlaceholders();
    void StoredTextsAreNotTranslated();
};

namespace {

struct Message
{
    QString context;
    QString source;
    QString translation;
    QString type; ///< Empty if finished; otherwise "unfinished", "vanished" or "obsolete".

    QString Place() const { return QString("%1: \"%2\"").arg(context, source); }
};

QString SourceFile(const QString& name)
{
    return SourcePath("translations/%1.ts").arg(name);
}

QVector<Message> Read(const QString& path)
{
    QFile file(path);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        FailTest(path + " cannot be read");
    QVector<Message> messages;
    const QDomNodeList elements = document.elementsByTagName("message");
    for (int i = 0; i < elements.size(); ++i) {
        const QDomElement element = elements.at(i).toElement();
        const QDomElement translation = element.firstChildElement("translation");
        messages << Message{element.parentNode().firstChildElement("name").text(),
                            element.firstChildElement("source").text(), translation.text(),
                            translation.attribute("type")};
    }
    return messages;
}

/// The file as lupdate would write it for the current sources; the file itself is not changed.
QVector<Message> Updated(const QString& name, const QString& folders)
{
    const QString copy = QDir::current().filePath(name + ".ts");
    if (!QFile::copy(SourceFile(name), copy) ||
        !QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner))
        FailTest(name + " cannot be copied");
    QProcess update;
    update.setWorkingDirectory(SourcePath({}));
    update.start(TARN_LUPDATE, QStringList({"-silent", "-locations", "none"}) + folders.split(',') +
                                   QStringList({"-ts", copy}));
    if (!update.waitForFinished() || update.exitCode() != 0)
        FailTest("lupdate failed: " + QString::fromLocal8Bit(update.readAllStandardError()));
    return Read(copy);
}

bool HasAccessKey(const QString& text)
{
    static const QRegularExpression key("&\\w");
    return text.contains(key);
}

bool IsChinese(const QString& text)
{
    static const QRegularExpression han("\\p{Han}");
    return text.contains(han);
}

void AddChineseFiles()
{
    QTest::addColumn<QString>("folders");
    QTest::newRow("TarnGUICommon_zh_CN") << TARN_LIBRARY_FOLDERS;
    QTest::newRow("tarnhost_zh_CN") << "host";
}

// Sorted, because a translation may need them in another order.
QStringList Placeholders(const QString& text)
{
    QStringList found;
    static const QRegularExpression placeholder("%[0-9]");
    auto match = placeholder.globalMatch(text);
    while (match.hasNext())
        found << match.next().captured();
    found.sort();
    return found;
}

} // namespace

void tst_Translations::ChineseIsComplete_data()
{
    AddChineseFiles();
}

void tst_Translations::ChineseIsComplete()
{
    QFETCH(QString, folders);
    EnterTemporaryDirectory();
    const QVector<Message> messages = Updated(QTest::currentDataTag(), folders);
    QVERIFY(messages.size() > 100);
    QStringList bad;
    for (const Message& message : messages) {
        if (!message.type.isEmpty())
            bad << message.Place() + " is " + message.type;
        else if (message.translation.isEmpty())
            bad << message.Place() + " has no translation";
    }
    QVERIFY2(bad.isEmpty(),
             qPrintable("Build the target UpdateTranslations, then finish in translations:\n" +
                        bad.join('\n')));
}

void tst_Translations::EnglishCoversTheTextsThatAreNotEnglish()
{
    EnterTemporaryDirectory();
    const QVector<Message> messages = Updated("TarnGUICommon_en", TARN_LIBRARY_FOLDERS);
    QStringList bad;
    int translated = 0;
    for (const Message& message : messages) {
        const bool isFinished = message.type.isEmpty() && !message.translation.isEmpty();
        if (IsChinese(message.source) != isFinished ||
            (isFinished && IsChinese(message.translation)))
            bad << message.Place();
        if (isFinished)
            ++translated;
    }
    QVERIFY2(bad.isEmpty(),
             qPrintable("TarnGUICommon_en.ts has the Chinese texts of the sources in English, and "
                        "no others:\n" +
                        bad.join('\n')));
    QCOMPARE(translated, 6);
}

void tst_Translations::ATranslationKeepsItsPlaceholders_data()
{
    AddChineseFiles();
}

void tst_Translations::ATranslationKeepsItsPlaceholders()
{
    QStringList bad;
    const QVector<Message> messages = Read(SourceFile(QTest::currentDataTag()));
    for (const Message& message : messages) {
        if (Placeholders(message.source) != Placeholders(message.translation) ||
            HasAccessKey(message.source) != HasAccessKey(message.translation) ||
            message.source.count('\n') != message.translation.count('\n') ||
            message.source.count(";;") != message.translation.count(";;"))
            bad << message.Place();
    }
    QVERIFY2(bad.isEmpty(),
             qPrintable("Placeholders, access keys, line ends or filters differ from "
                        "those of the source:\n" +
                        bad.join('\n')));
}

void tst_Translations::StoredTextsAreNotTranslated()
{
    const QStringList words = {"defaultBC", "Default"};
    QStringList found;
    QStringList bad;
    const QVector<Message> messages = Read(SourceFile("TarnGUICommon_zh_CN"));
    for (const Message& message : messages) {
        bool isNumber = false;
        message.source.toDouble(&isNumber);
        if (words.contains(message.source))
            found << message.source;
        else if (!isNumber)
            continue;
        if (message.translation != message.source)
            bad << message.Place();
    }
    QVERIFY2(bad.isEmpty(), qPrintable("The program reads these texts back; their translations "
                                       "have to be equal to them:\n" +
                                       bad.join('\n')));
    QCOMPARE(found.size(), words.size());
}

TARN_TEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
