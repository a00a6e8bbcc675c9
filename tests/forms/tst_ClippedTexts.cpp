#include "ClippedTexts.h"
#include "EmptyDesignStores.h"
#include "HostApplication.h"
#include "Language.h"
#include "Project.h"
#include "Screenshots.h"
#include "TestCase.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

// Several forms cut off texts in English; a translation must not cut off more.
class tst_ClippedTexts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ATextWithoutRoomIsFound_data();
    void ATextWithoutRoomIsFound();
    void TextsThatFitInEnglishFitInEveryLanguage_data();
    void TextsThatFitInEnglishFitInEveryLanguage();
    void AToolTipShowsACutTextInFull_data();
    void AToolTipShowsACutTextInFull();
};

namespace {

using Places = QMap<QString, QString>;

void Show(QWidget& window)
{
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    QCoreApplication::processEvents();
}

class FontSize
{
public:
    explicit FontSize(int points)
    {
        QFont font = m_before;
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    ~FontSize() { QApplication::setFont(m_before); }
    Q_DISABLE_COPY(FontSize)

private:
    QFont m_before = QApplication::font();
};

/// The truncated texts by window, in the current language.
QMap<QString, Places> ClippedNow()
{
    const EmptyDesignStores stores;
    QMap<QString, Places> clipped;
    VisitWindows(Project::Load(Project::SamplePath()),
                 [&clipped](const QString& name, QWidget& window) {
                     Show(window);
                     clipped[name] = ClippedTexts(window);
                 });
    return clipped;
}

} // namespace

void tst_ClippedTexts::ATextWithoutRoomIsFound_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("place");
    for (const char* const type :
         {"QLabel", "QPushButton", "QCheckBox", "QRadioButton", "QGroupBox", "QComboBox"})
        QTest::newRow(type) << type << QString("%1 it").arg(type);
    QTest::newRow("QTableWidget") << "QTableWidget"
                                  << "QHeaderView of it, section 0";
}

void tst_ClippedTexts::ATextWithoutRoomIsFound()
{
    QFETCH(QString, type);
    QFETCH(QString, place);
    const QString text = "A long text";
    QWidget window;
    QWidget* widget = nullptr;
    if (type == "QLabel")
        widget = new QLabel(text, &window);
    else if (type == "QPushButton")
        widget = new QPushButton(text, &window);
    else if (type == "QCheckBox")
        widget = new QCheckBox(text, &window);
    else if (type == "QRadioButton")
        widget = new QRadioButton(text, &window);
    else if (type == "QGroupBox")
        widget = new QGroupBox(text, &window);
    else if (type == "QComboBox")
        (new QComboBox(&window))->addItem(text);
    else
        (new QTableWidget(1, 1, &window))->setHorizontalHeaderLabels({text});
    if (widget == nullptr)
        widget = qobject_cast<QWidget*>(window.children().constFirst());
    widget->setObjectName("it");

    const auto sections = [widget](int width) {
        if (auto* const table = qobject_cast<QTableWidget*>(widget))
            table->setColumnWidth(0, width);
        else
            widget->resize(width, 30);
    };
    window.resize(400, 300);
    sections(300);
    Show(window);
    QCOMPARE(ClippedTexts(window), Places());
    sections(40);
    QCOMPARE(ClippedTexts(window), Places({{place, text}}));

    // Nor is there room beyond the edge of the window.
    if (type == "QTableWidget")
        return;
    sections(300);
    window.resize(40, 300);
    QCOMPARE(ClippedTexts(window), Places({{place, text}}));
}

void tst_ClippedTexts::TextsThatFitInEnglishFitInEveryLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("points");
    const QStringList languages = Language::Known();
    for (const QString& language : languages) {
        for (const int points : {8, 9, 10, 12})
            QTest::addRow("%s, %d points", qPrintable(language), points) << language << points;
    }
}

void tst_ClippedTexts::TextsThatFitInEnglishFitInEveryLanguage()
{
    QFETCH(QString, language);
    QFETCH(int, points);
    const FontSize font(points);
    const QMap<QString, Places> given = ClippedNow();
    const Language spoken(language);
    const QMap<QString, Places> other = ClippedNow();
    QVERIFY(other.size() > 25);
    QCOMPARE(other.keys(), given.keys());
    QStringList cut;
    for (auto window = other.begin(); window != other.end(); ++window) {
        for (auto place = window->begin(); place != window->end(); ++place) {
            if (!given[window.key()].contains(place.key()))
                cut << QString("%1: %2 \"%3\"").arg(window.key(), place.key(), place.value());
        }
    }
    QVERIFY2(cut.isEmpty(),
             qPrintable("Too wide or too high for its widget; make the text shorter or "
                        "the widget larger in its form:\n" +
                        cut.join('\n')));
}

void tst_ClippedTexts::AToolTipShowsACutTextInFull_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("points");
    const QStringList languages = Language::Known();
    for (const QString& language : languages) {
        for (const int points : {9, 10, 11, 12})
            QTest::addRow("%s, %d points", qPrintable(language), points) << language << points;
    }
}

void tst_ClippedTexts::AToolTipShowsACutTextInFull()
{
    QFETCH(QString, language);
    QFETCH(int, points);
    const FontSize font(points);
    const Language spoken(language);
    const EmptyDesignStores stores;
    QStringList unexplained;
    int clipped = 0;
    VisitWindows(Project::Load(Project::SamplePath()), [&](const QString& name, QWidget& window) {
        if (name == "MainWindow")
            return; // users widen its columns
        Show(window);
        clipped += ClippedTexts(window).size();
        const Places texts = TextsWithoutToolTip(window);
        for (auto place = texts.begin(); place != texts.end(); ++place)
            unexplained << QString("%1: %2 \"%3\"").arg(name, place.key(), place.value());
    });
    QVERIFY(clipped > 0);
    QVERIFY2(unexplained.isEmpty(),
             qPrintable("These texts are cut and have no tool tip; a dialog of the library calls "
                        "tarn::ElideTexts() after setupUi():\n" +
                        unexplained.join('\n')));
}

TARN_TEST_MAIN(tst_ClippedTexts, HostApplication)
#include "tst_ClippedTexts.moc"
