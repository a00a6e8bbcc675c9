#include "ClippedTexts.h"
#include "ElidedTexts.h"
#include "TestCase.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QToolTip>

#include <functional>

// Texts without room end with an ellipsis, and a tool tip shows them in full.
class tst_ElidedTexts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ATextWithoutRoomIsDrawnElided_data();
    void ATextWithoutRoomIsDrawnElided();
    void LettersAreShownWhereOnlyAnEllipsisFits();
    void ATextWithRoomIsDrawnAsEver_data();
    void ATextWithRoomIsDrawnAsEver();
    void TheToolTipFollowsTextSizeAndFont();
    void ATextWithMarkupIsShownAsItIs();
    void AToolTipOfTheHostStays();
    void TheToolTipOfATitleIsNotThatOfTheGroup();
    void AColumnHeaderHasAToolTipWhileItIsCut();
};

namespace {

const QString LongText = QStringLiteral("A text without room");

using Maker = std::function<QWidget*(const QString&, QWidget*)>;

template<class Widget>
QWidget* Make(const QString& text, QWidget* parent)
{
    return new Widget(text, parent);
}

void AddKinds()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("label") << Maker(Make<QLabel>);
    QTest::newRow("push button") << Maker(Make<QPushButton>);
    QTest::newRow("check box") << Maker(Make<QCheckBox>);
    QTest::newRow("radio button") << Maker(Make<QRadioButton>);
    QTest::newRow("group box") << Maker(Make<QGroupBox>);
}

/// A widget of any kind in a window that elides texts or does not.
class Shown
{
public:
    Shown(const Maker& make, const QString& text, int width, bool elide = true)
        : widget(*make(text, &m_window))
    {
        widget.setGeometry(10, 10, width, 40);
        m_window.resize(400, 100);
        if (elide)
            tarn::ElideTexts(m_window);
        m_window.setAttribute(Qt::WA_DontShowOnScreen);
        m_window.show();
        QCoreApplication::processEvents();
    }

    QImage Picture() { return widget.grab().toImage(); }

private:
    QWidget m_window;

public:
    QWidget& widget;
};

} // namespace

Q_DECLARE_METATYPE(Maker)

void tst_ElidedTexts::ATextWithoutRoomIsDrawnElided_data()
{
    AddKinds();
}

void tst_ElidedTexts::ATextWithoutRoomIsDrawnElided()
{
    QFETCH(Maker, make);
    Shown cut(make, LongText, 80);
    const Shown given(make, LongText, 80, false);
    // What is drawn is what the same widget draws with some beginning of the text and an ellipsis.
    const QImage picture = cut.Picture();
    bool isElided = false;
    for (int letters = 0; letters < LongText.size(); ++letters)
        isElided |= picture == Shown(make, LongText.left(letters) + QChar(0x2026), 80).Picture();
    QVERIFY(isElided);
    QCOMPARE(cut.widget.toolTip(), LongText);
    QCOMPARE(cut.widget.geometry(), given.widget.geometry());
    const char* const property =
        qobject_cast<QGroupBox*>(&cut.widget) != nullptr ? "title" : "text";
    QCOMPARE(cut.widget.property(property).toString(), LongText);
}

void tst_ElidedTexts::LettersAreShownWhereOnlyAnEllipsisFits()
{
    Shown narrow(Make<QLabel>, "FX", 14);
    QCOMPARE(narrow.Picture(), Shown(Make<QLabel>, "FX", 14, false).Picture());
    QCOMPARE(narrow.widget.toolTip(), QString("FX"));
}

void tst_ElidedTexts::ATextWithRoomIsDrawnAsEver_data()
{
    AddKinds();
}

void tst_ElidedTexts::ATextWithRoomIsDrawnAsEver()
{
    QFETCH(Maker, make);
    Shown fitting(make, LongText, 300);
    QCOMPARE(fitting.Picture(), Shown(make, LongText, 300, false).Picture());
    QCOMPARE(fitting.widget.toolTip(), QString());
}

void tst_ElidedTexts::TheToolTipFollowsTextSizeAndFont()
{
    Shown shown(Make<QLabel>, LongText, 80);
    auto& label = dynamic_cast<QLabel&>(shown.widget);
    QCOMPARE(label.toolTip(), LongText);
    label.setText("Another text without room");
    shown.Picture();
    QCOMPARE(label.toolTip(), QString("Another text without room"));
    label.resize(300, 40);
    QCOMPARE(label.toolTip(), QString());
    QFont large = label.font();
    large.setPointSize(30);
    label.setFont(large);
    QCOMPARE(label.toolTip(), label.text());
}

void tst_ElidedTexts::ATextWithMarkupIsShownAsItIs()
{
    const Shown button(Make<QPushButton>, "<b>a</b> < b and much more", 60);
    QCOMPARE(button.widget.toolTip(), QString("&lt;b&gt;a&lt;/b&gt; &lt; b and much more"));
    const Shown rich(Make<QLabel>, "<b>Rich</b> text without room", 60);
    QCOMPARE(rich.widget.toolTip(), QString());
}

void tst_ElidedTexts::AToolTipOfTheHostStays()
{
    Shown shown(Make<QLabel>, LongText, 80);
    shown.widget.setToolTip("mine");
    shown.Picture();
    QCOMPARE(shown.widget.toolTip(), QString("mine"));
    shown.widget.resize(300, 40);
    QCOMPARE(shown.widget.toolTip(), QString("mine"));
}

void tst_ElidedTexts::TheToolTipOfATitleIsNotThatOfTheGroup()
{
    const Shown shown(Make<QGroupBox>, LongText, 80);
    const auto showsToolTip = [&shown](const QPoint& mouse) {
        QHelpEvent rest(QEvent::ToolTip, mouse, mouse);
        QCoreApplication::sendEvent(&shown.widget, &rest);
        const bool isShown = QToolTip::text() == LongText;
        QToolTip::hideText();
        return isShown;
    };
    QVERIFY(!showsToolTip({40, 35}));
    QVERIFY(showsToolTip({40, 5}));
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_ElidedTexts::AColumnHeaderHasAToolTipWhileItIsCut()
{
    QWidget window;
    auto* const table = new QTableWidget(1, 2, &window);
    table->setHorizontalHeaderLabels({"Narrow column", "Explained column"});
    table->horizontalHeaderItem(1)->setToolTip("mine");
    tarn::ElideTexts(window);
    const auto toolTips = [&](int width) {
        table->setColumnWidth(0, width);
        table->setColumnWidth(1, width);
        window.grab();
        return QStringList{table->horizontalHeaderItem(0)->toolTip(),
                           table->horizontalHeaderItem(1)->toolTip()};
    };
    QCOMPARE(toolTips(40), QStringList({"Narrow column", "mine"}));
    QCOMPARE(toolTips(200), QStringList({QString(), "mine"}));
    table->setHorizontalHeaderLabels({"Another narrow column", "Explained column"});
    QCOMPARE(toolTips(40), QStringList({"Another narrow column", "mine"}));
    table->setHorizontalHeaderLabels({"A third narrow column", "Explained column"});
    QCOMPARE(toolTips(40), QStringList({"A third narrow column", "mine"}));
}

TARN_TEST_MAIN(tst_ElidedTexts, QApplication)
#include "tst_ElidedTexts.moc"
