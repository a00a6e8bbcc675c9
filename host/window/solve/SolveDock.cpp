#include "SolveDock.h"

#include "ui_SolvePanel.h"

#include <QTime>

namespace {

constexpr int Second = 1000; // ms
constexpr int StageCount = int(SolveStage::Reading) + 1;

QString StageText(SolveStage stage)
{
    switch (stage) {
    case SolveStage::Building:
        return SolveDock::tr("Building the part");
    case SolveStage::Meshing:
        return SolveDock::tr("Meshing");
    case SolveStage::Modelling:
        return SolveDock::tr("Writing the decks");
    case SolveStage::Solving:
        return SolveDock::tr("Solving");
    default:
        return SolveDock::tr("Reading the results");
    }
}

} // namespace

SolveDock::SolveDock(SolveProcess& process, QWidget* parent)
    : QDockWidget(tr("Solve"), parent)
    , m_ui(std::make_unique<Ui::SolvePanel>())
{
    setObjectName(QStringLiteral("solveDock"));
    auto* const content = new QWidget(this);
    m_ui->setupUi(content);
    setWidget(content);
    m_ui->stageBar->setRange(0, StageCount);
    m_clock.setInterval(Second);
    connect(&m_clock, &QTimer::timeout, this, &SolveDock::ShowTime);
    m_ui->offerButton->hide();
    m_ui->nextLabel->hide();
    connect(m_ui->offerButton, &QPushButton::clicked, this, &SolveDock::ResultsWanted);
    connect(m_ui->cancelButton, &QPushButton::clicked, &process, &SolveProcess::Cancel);
    connect(&process, &SolveProcess::Told, this, &SolveDock::Take);
    connect(&process, &SolveProcess::Finished, this, &SolveDock::End);
}

SolveDock::~SolveDock() = default;

void SolveDock::Begin(const QString& title)
{
    m_ui->titleLabel->setText(title);
    m_ui->stageLabel->setText(tr("Starting"));
    m_ui->stageBar->setValue(0);
    m_ui->log->clear();
    m_ui->offerButton->hide();
    m_ui->cancelButton->setEnabled(true);
    m_since.start();
    m_clock.start();
    ShowTime();
    show();
    raise();
}

void SolveDock::SetNext(const QString& title)
{
    m_ui->nextLabel->setText(tr("Then: %1").arg(title));
    m_ui->nextLabel->show();
}

void SolveDock::OfferResults()
{
    m_ui->offerButton->show();
    show();
    raise();
}

void SolveDock::Take(const SolveMessage& message)
{
    if (message.kind == SolveMessage::Stage) {
        m_ui->stageLabel->setText(StageText(message.stage));
        m_ui->stageBar->setValue(int(message.stage));
    } else {
        m_ui->log->appendPlainText(message.text);
    }
}

void SolveDock::End(SolveProcess::Outcome outcome, const QString& problem)
{
    m_clock.stop();
    ShowTime();
    m_ui->cancelButton->setEnabled(false);
    m_ui->nextLabel->hide();
    m_ui->stageLabel->setText(outcome == SolveProcess::Done ? tr("Done") : problem);
    if (outcome == SolveProcess::Done)
        m_ui->stageBar->setValue(StageCount);
    else
        m_ui->stageBar->reset();
}

void SolveDock::ShowTime()
{
    const int seconds = int(m_since.elapsed() / Second);
    m_ui->timeLabel->setText(tr("%1 min %2 s").arg(seconds / 60).arg(seconds % 60));
}
