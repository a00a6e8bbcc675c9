#include "ViewActions.h"

#include "MenuActions.h"

#include <QActionGroup>
#include <QMenu>
#include <QRegularExpression>
#include <QSlider>
#include <QToolBar>

namespace {

// "Fit" of "&Fit", and of "Fit(&F)", where the toolkit would leave the letter.
QString WithoutAccessKey(QString text)
{
    static const QRegularExpression letterApart(QStringLiteral("\\(&\\w\\)"));
    return text.remove(letterApart).remove(QLatin1Char('&'));
}

QAction* NewSeparator(QObject* parent)
{
    auto* const separator = new QAction(parent);
    separator->setSeparator(true);
    return separator;
}

} // namespace

ViewActions::ViewActions(PartView* view, QObject* parent)
    : QObject(parent)
    , m_view(view)
{
    Add(tr("&Fit"), "action_FitView", QKeySequence(QStringLiteral("Ctrl+0")),
        [view] { view->FitAll(); });
    m_actions << NewSeparator(this);

    const auto addView = [this, view](const QString& text, const char* name, int key,
                                      PartView::StandardView standardView) {
        Add(text, name, QKeySequence(QStringLiteral("Ctrl+%1").arg(key)),
            [view, standardView] { view->SetStandardView(standardView); });
    };
    addView(tr("F&ront"), "action_FrontView", 1, PartView::FrontView);
    addView(tr("&Back"), "action_BackView", 2, PartView::BackView);
    addView(tr("&Left"), "action_LeftView", 3, PartView::LeftView);
    addView(tr("Ri&ght"), "action_RightView", 4, PartView::RightView);
    addView(tr("&Top"), "action_TopView", 5, PartView::TopView);
    addView(tr("B&ottom"), "action_BottomView", 6, PartView::BottomView);
    addView(tr("&Isometric"), "action_IsometricView", 7, PartView::IsometricView);
    m_actions << NewSeparator(this);

    auto* const modes = new QActionGroup(this);
    const auto addMode = [this, view, modes](const QString& text, const char* name,
                                             PartView::DisplayMode mode) {
        QAction* const action =
            Add(text, name, QKeySequence(), [view, mode] { view->SetDisplayMode(mode); });
        action->setCheckable(true);
        action->setChecked(view != nullptr && view->CurrentDisplayMode() == mode);
        modes->addAction(action);
    };
    addMode(tr("&Shaded with edges"), "action_ShadedWithEdges", PartView::ShadedWithEdges);
    addMode(tr("&Wireframe"), "action_Wireframe", PartView::Wireframe);

    m_menuOnly << NewSeparator(this);
    m_actions << m_menuOnly;

    auto* const sections = new QActionGroup(this);
    const auto addSection = [this, sections](const QString& text, const char* name,
                                             PartView::Section section) {
        QAction* const action = Add(text, name, QKeySequence(), [this, section] {
            m_section = section;
            ShowSection();
        });
        action->setCheckable(true);
        action->setChecked(section == PartView::NoSection);
        sections->addAction(action);
        m_menuOnly << action;
    };
    addSection(tr("&No section"), "action_NoSection", PartView::NoSection);
    addSection(tr("Section across &x"), "action_SectionX", PartView::SectionX);
    addSection(tr("Section across &y"), "action_SectionY", PartView::SectionY);
    addSection(tr("Section across &z"), "action_SectionZ", PartView::SectionZ);

    for (QAction* const action : qAsConst(m_actions))
        action->setEnabled(view != nullptr);
}

ViewActions::~ViewActions() = default;

QAction* ViewActions::Add(const QString& text, const char* name, const QKeySequence& shortcut,
                          const std::function<void()>& act)
{
    QAction* const action = NewAction(text, name, this, act, shortcut);
    // On the tool bar.
    action->setIconText(WithoutAccessKey(text));
    action->setToolTip(action->iconText());
    m_actions << action;
    return action;
}

void ViewActions::FillMenu(QMenu& menu) const
{
    menu.addActions(m_actions);
}

void ViewActions::FillToolBar(QToolBar& toolBar)
{
    for (QAction* const action : qAsConst(m_actions)) {
        if (!m_menuOnly.contains(action))
            toolBar.addAction(action);
    }
    AddSlider(toolBar);
}

void ViewActions::AddSlider(QToolBar& toolBar)
{
    constexpr int Percent = 100;
    constexpr int Width = 140;
    m_slider = new QSlider(Qt::Horizontal, &toolBar);
    m_slider->setObjectName(QStringLiteral("sectionSlider"));
    m_slider->setAccessibleName(tr("Place of the section"));
    m_slider->setToolTip(m_slider->accessibleName());
    m_slider->setRange(0, Percent);
    m_slider->setValue(Percent / 2);
    m_slider->setFixedWidth(Width);
    m_sliderAction = toolBar.addWidget(m_slider);
    m_sliderAction->setVisible(false);
    connect(m_slider, &QSlider::valueChanged, this, &ViewActions::ShowSection);
}

void ViewActions::ShowSection()
{
    double place = 0.5;
    if (m_slider != nullptr) {
        place = double(m_slider->value()) / m_slider->maximum();
        m_sliderAction->setVisible(m_section != PartView::NoSection);
    }
    m_view->SetSection(m_section, place);
}
