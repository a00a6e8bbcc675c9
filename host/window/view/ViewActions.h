#pragma once

#include "PartView.h"

#include <QKeySequence>
#include <QList>
#include <QObject>

#include <functional>

class QAction;
class QMenu;
class QSlider;
class QToolBar;

/// The actions of the menu and toolbar for the view: fit, the standard views, the display mode,
/// sections. The tool bar has a slider for the place of a section while there is one.
///
/// Without a view, because there is no OpenGL, the actions are disabled.
class ViewActions : public QObject
{
    Q_OBJECT

public:
    /// @p view may be null; otherwise it outlives the actions.
    ViewActions(PartView* view, QObject* parent);
    ~ViewActions() override;

    void FillMenu(QMenu& menu) const;
    void FillToolBar(QToolBar& toolBar);

private:
    QAction* Add(const QString& text, const char* name, const QKeySequence& shortcut,
                 const std::function<void()>& act);

    void AddSlider(QToolBar& toolBar);
    void ShowSection();

    PartView* m_view;
    QList<QAction*> m_actions;
    QList<QAction*> m_menuOnly; // Not on the tool bar.
    PartView::Section m_section = PartView::NoSection;
    QSlider* m_slider = nullptr; // For the place of the section, in percent.
    QAction* m_sliderAction = nullptr;
};
