#include "DialogCatalogue.h"
#include "EmptyDesignStores.h"
#include "HostApplication.h"
#include "Project.h"
#include "SampleAnalysis.h"
#include "SampleRegistry.h"
#include "TestCase.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPixmap>
#include <QRegularExpression>

class tst_DialogCatalogue : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ListsTheDialogOfEveryForm();
    void ListsEveryExportedDialog();
    void IsInAlphabeticalOrder();
    void MakesHiddenDialogsWithoutParent();
    void MakesTheFormOfEveryExportedDialog();
    void FillsDialogsWithVisibleData();
};

namespace {

QStringList Names()
{
    QStringList names;
    for (const CatalogueEntry& entry : DialogCatalogue())
        names << entry.name;
    return names;
}

/// The texts that @p pattern captures in the dialogs' headers, by the class that each header is
/// named after.
QMultiMap<QString, QString> FindInHeaders(const char* pattern)
{
    const QRegularExpression expression(pattern);
    QMultiMap<QString, QString> found;
    for (const char* const folder : {"design", "analysis", "geometry", "solver"}) {
        const QFileInfoList headers = QDir(SourcePath(folder)).entryInfoList({"*.h"});
        for (const QFileInfo& header : headers) {
            QFile file(header.filePath());
            if (!file.open(QIODevice::ReadOnly))
                FailTest(QString("%1 cannot be read").arg(file.fileName()));
            QRegularExpressionMatchIterator match =
                expression.globalMatch(QString::fromUtf8(file.readAll()));
            while (match.hasNext())
                found.insert(header.completeBaseName(), match.next().captured(1));
        }
    }
    return found;
}

/// Those of @p names that are not in @p others.
QStringList Without(QStringList names, const QStringList& others)
{
    for (const QString& other : others)
        names.removeAll(other);
    return names;
}

} // namespace

void tst_DialogCatalogue::ListsTheDialogOfEveryForm()
{
    const QMultiMap<QString, QString> dialogs = FindInHeaders("#include \"ui_(\\w+)\\.h\"");
    const QStringList forms = QDir(SourcePath("forms")).entryList({"*.ui"});
    QVERIFY(!forms.isEmpty());
    QCOMPARE(dialogs.size(), forms.size());
    // The library makes this one itself.
    QStringList listed = Names() + QStringList("MaterialEditer");
    listed.sort();
    const QStringList missing = Without(dialogs.keys(), listed);
    QVERIFY2(missing.isEmpty(), qPrintable("add to DialogCatalogue.cpp: " + missing.join(' ')));
    QCOMPARE(listed, dialogs.keys());
}

void tst_DialogCatalogue::ListsEveryExportedDialog()
{
    const QStringList dialogs =
        FindInHeaders("class TARNGUICOMMON_EXPORT (\\w+) : public Q(?:Dialog|Widget)\\b").values();
    QVERIFY(!dialogs.isEmpty());
    const QStringList missing = Without(dialogs, Names());
    QVERIFY2(missing.isEmpty(), qPrintable("add to DialogCatalogue.cpp: " + missing.join(' ')));
}

void tst_DialogCatalogue::IsInAlphabeticalOrder()
{
    QStringList sorted = Names();
    sorted.sort();
    QCOMPARE(Names().join(' '), sorted.join(' '));
}

void tst_DialogCatalogue::MakesHiddenDialogsWithoutParent()
{
    EnterTemporaryDirectory();
    const EmptyDesignStores stores;
    for (const CatalogueEntry& entry : DialogCatalogue()) {
        const std::unique_ptr<QWidget> dialog = entry.make();
        QCOMPARE(dialog->metaObject()->className(), entry.name);
        QVERIFY2(!dialog->isVisible() && dialog->parentWidget() == nullptr, entry.name);
    }
}

void tst_DialogCatalogue::MakesTheFormOfEveryExportedDialog()
{
    const QMultiMap<QString, QString> exported =
        FindInHeaders("class TARNGUICOMMON_EXPORT (\\w+) : public Q(?:Dialog|Widget)\\b");
    for (const CatalogueEntry& entry : DialogCatalogue()) {
        QCOMPARE(entry.makeForm != nullptr, exported.contains(entry.name));
        if (entry.makeForm == nullptr)
            continue;
        // Some forms connect slots of their dialog, which a bare window does not have.
        const QtMessageHandler collect =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        entry.makeForm();
        qInstallMessageHandler(collect);
    }
}

void tst_DialogCatalogue::FillsDialogsWithVisibleData()
{
    const EmptyDesignStores stores;
    const SampleAnalysisFiles files;
    const Project project = Project::Load(Project::SamplePath());
    project.FillParameterStore();
    FillSampleRegistry(project.SampleLists());
    for (const CatalogueEntry& entry : DialogCatalogue()) {
        if (entry.fill == nullptr)
            continue;
        const std::unique_ptr<QWidget> filled = entry.make();
        entry.fill(*filled);
        QVERIFY2(filled->grab().toImage() != entry.make()->grab().toImage(), entry.name);
    }
}

TARN_TEST_MAIN(tst_DialogCatalogue, HostApplication)
#include "tst_DialogCatalogue.moc"
