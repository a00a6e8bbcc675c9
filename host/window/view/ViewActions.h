#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>

#include <functional>

class PartView;
class QAction;
class QMenu;
class QToolBar;

/// The actions of the menu and toolbar for the view: fit, the standard views, the display mode,
/// sections.
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
    void FillToolBar(QToolBar& toolBar) const;

private:
    QAction* Add(const QString& text, const char* name, const QKeySequence& shortcut,
                 const std::function<void()>& act);

    QList<QAction*> m_actions;
    QList<QAction*> m_menuOnly; // Not on the tool bar.
};
