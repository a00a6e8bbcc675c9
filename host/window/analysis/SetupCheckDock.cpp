#include "SetupCheckDock.h"

#include "MessageLevel.h"

#include <QLabel>
#include <QListWidget>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

SetupCheckDock::SetupCheckDock(QWidget* parent)
    : QDockWidget(tr("Set-up check"), parent)
    , m_summary(new QLabel(tr("The set-up was not checked yet."), this))
    , m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("setupCheckDock"));
    m_summary->setObjectName(QStringLiteral("setupCheckSummary"));
    m_summary->setWordWrap(true);
    m_list->setObjectName(QStringLiteral("setupCheckList"));
    m_list->setAccessibleName(windowTitle());
    m_list->setWordWrap(true);
    auto* const content = new QWidget(this);
    auto* const layout = new QVBoxLayout(content);
    layout->addWidget(m_summary);
    layout->addWidget(m_list);
    setWidget(content);
    connect(m_list, &QListWidget::itemClicked, this, &SetupCheckDock::Choose);
    connect(m_list, &QListWidget::itemActivated, this, &SetupCheckDock::Choose);
}

SetupCheckDock::~SetupCheckDock() = default;

void SetupCheckDock::ShowProblems(const std::vector<SetupProblem>& problems)
{
    m_problems = problems;
    m_list->clear();
    m_list->setEnabled(true);
    for (const SetupProblem& problem : problems) {
        const QStyle::StandardPixmap icon =
            problem.isWarning ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxCritical;
        m_list->addItem(new QListWidgetItem(style()->standardIcon(icon), problem.text));
    }
    const auto errors =
        std::count_if(problems.begin(), problems.end(),
                      [](const SetupProblem& problem) { return !problem.isWarning; });
    const int warnings = int(problems.size()) - int(errors);
    if (problems.empty())
        m_summary->setText(tr("The check of the set-up found no problems"));
    else
        m_summary->setText(
            tr("Set-up check: problems: %1, warnings: %2").arg(errors).arg(warnings));
    PostMessageToChannel(problems.empty() ? InfoLevel : WarningLevel, m_summary->text());
    show();
    raise();
}

void SetupCheckDock::MarkAsOld()
{
    if (!m_list->isEnabled() || m_list->count() == 0)
        return;
    m_list->setEnabled(false);
    m_summary->setText(tr("The set-up has changed since it was checked: check it again."));
}

void SetupCheckDock::Choose(const QListWidgetItem* item)
{
    const int row = m_list->row(item);
    if (row >= 0)
        Q_EMIT EntryChosen(m_problems.at(std::size_t(row)).entry);
}
