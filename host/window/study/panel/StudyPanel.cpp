#include "StudyPanel.h"

#include "ui_StudyPanel.h"

#include "DesignModel.h"
#include "MessageLevel.h"
#include "PartModel.h"
#include "Project.h"
#include "ProjectSession.h"
#include "StudyPreview.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QThread>

#include <algorithm>
#include <limits>

namespace {

constexpr int UsualRuns = 100;
constexpr int MostJobs = 64;

bool IsSampled(StudyDefinition::Design design)
{
    return design == StudyDefinition::LatinHypercube || design == StudyDefinition::Sobol;
}

void Refuse(const QString& reason)
{
    PostMessageToChannel(ErrorLevel, reason);
}

// The first of "study_2", "study_3" and so on that does not exist.
QString NextName(const QDir& parent, const QString& name)
{
    QString stem = name;
    stem.remove(QRegularExpression(QStringLiteral("(_[0-9]+)?/*$")));
    for (int number = 2;; ++number) {
        QString next = QStringLiteral("%1_%2").arg(stem).arg(number);
        if (!QFileInfo::exists(parent.filePath(next)))
            return next;
    }
}

} // namespace

StudyPanel::StudyPanel(ProjectSession& session, DesignModel& design, PartModel& part,
                       QWidget* parent)
    : QDockWidget(tr("Study"), parent)
    , m_session(session)
    , m_design(design)
    , m_part(part)
    , m_form(std::make_unique<Ui::StudyPanel>())
{
    setObjectName(QStringLiteral("studyDock"));
    auto* const content = new QWidget(this);
    m_form->setupUi(content);
    // Only the settings scroll: progress and buttons are always in sight.
    m_form->settingsArea->setMinimumWidth(
        m_form->settings->minimumSizeHint().width() +
        m_form->settingsArea->verticalScrollBar()->sizeHint().width());
    setWidget(content);

    m_form->spinBox_Runs->setRange(1, StudyDefinition::MaximumRuns);
    m_form->spinBox_Runs->setValue(UsualRuns);
    m_form->spinBox_Jobs->setRange(1, MostJobs);
    m_form->spinBox_Jobs->setValue(std::min(QThread::idealThreadCount(), MostJobs));
    m_form->lineEdit_Seed->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[0-9]{0,10}")), m_form->lineEdit_Seed));
    m_form->progressBar->hide();
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(0);
    ConnectForm();
    ConnectModels();
    Refresh();
    ShowState(StudyProcess::Idle);
}

StudyPanel::~StudyPanel() = default;

void StudyPanel::ConnectForm()
{
    connect(m_form->sampleTable, &SampleTable::SamplesEdited, &m_session,
            &ProjectSession::TakeChange);
    connect(m_form->sampleTable, &SampleTable::Refused, this, [this](const QString& reason) {
        Refuse(reason);
        m_refresh.start();
    });
    connect(m_form->comboBox_Design, QOverload<int>::of(&QComboBox::activated), this,
            &StudyPanel::TakeDesign);
    connect(m_form->spinBox_Runs, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &StudyPanel::TakeDesign);
    connect(m_form->lineEdit_Seed, &QLineEdit::editingFinished, this, &StudyPanel::TakeSeed);
    connect(m_form->lineEdit_File, &QLineEdit::editingFinished, this, &StudyPanel::TakeDesign);
    connect(m_form->toolButton_File, &QToolButton::clicked, this, &StudyPanel::ChooseList);
    connect(m_form->checkBox_Vibration, &QCheckBox::clicked, this, &StudyPanel::TakeAnalyses);
    connect(m_form->checkBox_Static, &QCheckBox::clicked, this, &StudyPanel::TakeAnalyses);
    connect(m_form->responseTable, &ResponseTable::Edited, this, [this](const QString& text) {
        StudyDefinition study = m_session.Current().Study();
        study.responses = m_form->responseTable->Responses();
        Change(study, text);
    });
    connect(m_form->toolButton_AddResponse, &QToolButton::clicked, m_form->responseTable,
            &ResponseTable::Add);
    connect(m_form->toolButton_RemoveResponse, &QToolButton::clicked, m_form->responseTable,
            &ResponseTable::RemoveSelected);
    connect(m_form->toolButton_Folder, &QToolButton::clicked, this, &StudyPanel::ChooseFolder);
    connect(m_form->spinBox_Jobs, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &StudyPanel::ShowExpected);
    connect(m_form->pushButton_Start, &QPushButton::clicked, this, &StudyPanel::StartWanted);
    connect(m_form->pushButton_Pause, &QPushButton::clicked, this, &StudyPanel::PauseWanted);
    connect(m_form->pushButton_Stop, &QPushButton::clicked, this, &StudyPanel::StopWanted);
}

void StudyPanel::ConnectModels()
{
    connect(&m_refresh, &QTimer::timeout, this, &StudyPanel::Refresh);
    const auto refreshLater = [this] {
        m_refresh.start();
    };
    connect(&m_session, &ProjectSession::StateChanged, this, refreshLater);
    connect(&m_design, &DesignModel::Changed, this, refreshLater);
    connect(&m_session, &ProjectSession::Opened, this, [this] {
        m_buildSeconds = 0.0;
        m_form->lineEdit_Folder->clear();
        m_refresh.start();
    });
    connect(&m_part, &PartModel::Changed, this, [this] { m_building.start(); });
    connect(&m_part, &PartModel::PartBuilt, this, [this] {
        constexpr double Thousand = 1000.0;
        if (m_building.isValid())
            m_buildSeconds = std::max(m_buildSeconds, double(m_building.elapsed()) / Thousand);
        m_building.invalidate();
        m_refresh.start();
    });
}

void StudyPanel::Refresh()
{
    m_form->sampleTable->Refresh(m_design);
    ShowDefinition(m_session.Current().Study());
    const QString path = m_session.Current().Path();
    if (m_form->lineEdit_Folder->text().isEmpty() && QFileInfo(path).isFile())
        m_form->lineEdit_Folder->setText(QFileInfo(path).completeBaseName() +
                                         QStringLiteral("_study"));
    ShowExpected();
}

void StudyPanel::ShowDefinition(const StudyDefinition& study)
{
    const QSignalBlocker silentRuns(m_form->spinBox_Runs);
    m_form->comboBox_Design->setCurrentIndex(study.design);
    if (study.runs > 0)
        m_form->spinBox_Runs->setValue(study.runs);
    m_form->lineEdit_Seed->setText(study.seed ? QString::number(*study.seed) : QString());
    m_form->lineEdit_File->setText(study.file);
    m_form->checkBox_Vibration->setChecked(study.hasVibration);
    m_form->checkBox_Static->setChecked(study.hasStatic);
    m_form->responseTable->Show(study.responses);
    for (QWidget* const widget : std::initializer_list<QWidget*>{
             m_form->spinBox_Runs, m_form->label_Runs, m_form->lineEdit_Seed, m_form->label_Seed})
        widget->setVisible(IsSampled(study.design));
    for (QWidget* const widget : std::initializer_list<QWidget*>{
             m_form->lineEdit_File, m_form->label_File, m_form->toolButton_File})
        widget->setVisible(study.design == StudyDefinition::List);
}

void StudyPanel::ShowExpected()
{
    const Project project = m_session.Current();
    const StudyPreview preview = PreviewOf(project);
    m_form->pushButton_Start->setEnabled(m_state == StudyProcess::Idle &&
                                         preview.problem.isEmpty());
    if (!preview.problem.isEmpty())
        return m_form->label_Expected->setText(preview.problem);
    QString text = preview.runs == 1 ? tr("1 run") : tr("%1 runs").arg(preview.runs);
    const int jobs = std::min(m_form->spinBox_Jobs->value(), preview.runs);
    if (project.Study().hasVibration || project.Study().hasStatic)
        text += tr("; the first ones show how long their analyses take");
    else if (m_buildSeconds > 0.0)
        text += tr(", about %1").arg(DurationText(preview.runs * m_buildSeconds / jobs));
    m_form->label_Expected->setText(text);
}

void StudyPanel::Change(const StudyDefinition& study, const QString& text)
{
    m_session.SetStudy(study, text);
    // Also where nothing has changed: the form may show what was not taken.
    m_refresh.start();
}

void StudyPanel::TakeDesign()
{
    StudyDefinition study = m_session.Current().Study();
    study.design = StudyDefinition::Design(m_form->comboBox_Design->currentIndex());
    if (IsSampled(study.design))
        study.runs = m_form->spinBox_Runs->value();
    study.file = m_form->lineEdit_File->text().trimmed();
    Change(study, tr("Design of the study"));
}

void StudyPanel::TakeSeed()
{
    StudyDefinition study = m_session.Current().Study();
    const QString text = m_form->lineEdit_Seed->text();
    const qulonglong seed = text.toULongLong();
    if (seed > std::numeric_limits<quint32>::max()) {
        Refuse(
            tr("The seed is a whole number from 0 to %1").arg(std::numeric_limits<quint32>::max()));
        return m_refresh.start();
    }
    study.seed = text.isEmpty() ? std::nullopt : std::make_optional(quint32(seed));
    Change(study, tr("Seed of the study"));
}

void StudyPanel::TakeAnalyses()
{
    StudyDefinition study = m_session.Current().Study();
    study.hasVibration = m_form->checkBox_Vibration->isChecked();
    study.hasStatic = m_form->checkBox_Static->isChecked();
    Change(study, tr("Analyses of the study"));
}

QString StudyPanel::ProjectFolder() const
{
    return m_session.Current().Folder();
}

void StudyPanel::ChooseList()
{
    const QString path = QFileDialog::getOpenFileName(window(), tr("List of runs"), ProjectFolder(),
                                                      tr("Tables (*.csv);;All files (*)"));
    if (path.isEmpty())
        return;
    m_form->lineEdit_File->setText(QDir(ProjectFolder()).relativeFilePath(path));
    TakeDesign();
}

bool StudyPanel::ChooseFolder()
{
    const QString path = QFileDialog::getExistingDirectory(
        window(), tr("Folder for the results of the study"), ProjectFolder());
    if (!path.isEmpty())
        m_form->lineEdit_Folder->setText(QDir(ProjectFolder()).relativeFilePath(path));
    return !path.isEmpty();
}

bool StudyPanel::OfferNewFolder(const QString& differs)
{
    const QString used = m_form->lineEdit_Folder->text().trimmed();
    const QString wanted = NextName(QDir(ProjectFolder()), used);
    QMessageBox box(QMessageBox::Question, tr("New folder for the study?"),
                    tr("The folder %1 holds the results of another study: %2.").arg(used, differs),
                    {}, window());
    box.setInformativeText(
        tr("Its results stay as they are. This study can use the new folder %1.").arg(wanted));
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::Cancel);
    box.button(QMessageBox::Yes)->setText(tr("Use the new folder"));
    box.setDefaultButton(QMessageBox::Yes);
    if (box.exec() != QMessageBox::Yes)
        return false;
    m_form->lineEdit_Folder->setText(wanted);
    return true;
}

StudyProcess::Options StudyPanel::Options() const
{
    StudyProcess::Options options;
    const QString folder = m_form->lineEdit_Folder->text().trimmed();
    if (!folder.isEmpty())
        options.directory = QDir::cleanPath(QDir(ProjectFolder()).absoluteFilePath(folder));
    options.jobs = m_form->spinBox_Jobs->value();
    options.hasSteps = m_form->checkBox_Steps->isChecked();
    return options;
}

void StudyPanel::ShowState(StudyProcess::State state)
{
    if (state == StudyProcess::Running && m_state != StudyProcess::Running) {
        m_sinceStart.start();
        m_endedAtStart = -1;
    }
    m_state = state;
    const bool isIdle = state == StudyProcess::Idle;
    m_form->pushButton_Pause->setText(state == StudyProcess::Paused ? tr("Continue") : tr("Pause"));
    m_form->pushButton_Pause->setEnabled(state == StudyProcess::Running ||
                                         state == StudyProcess::Paused);
    m_form->pushButton_Stop->setEnabled(m_form->pushButton_Pause->isEnabled());
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{m_form->lineEdit_Folder, m_form->toolButton_Folder,
                                         m_form->spinBox_Jobs, m_form->checkBox_Steps})
        widget->setEnabled(isIdle);
    if (state == StudyProcess::Paused)
        ShowProgressText(tr("Paused. Continue goes on with the project as it was at the start."));
    ShowExpected();
}

void StudyPanel::ShowProgress(int runs, int ended, int failed, int running)
{
    m_form->progressBar->setVisible(runs > 0);
    m_form->progressBar->setRange(0, std::max(1, runs));
    m_form->progressBar->setValue(ended);
    if (m_state == StudyProcess::Paused)
        return;
    QString text = tr("%1 of %2 runs have ended").arg(ended).arg(runs);
    if (failed > 0)
        text += tr(", %1 of them failed").arg(failed);
    if (running > 0)
        text += tr("; %1 running").arg(running);
    if (m_endedAtStart < 0)
        m_endedAtStart = ended;
    const int since = ended - m_endedAtStart;
    if (m_state == StudyProcess::Running && since > 0) {
        constexpr double Thousand = 1000.0;
        const double each = double(m_sinceStart.elapsed()) / Thousand / since;
        text += tr("; %1 left").arg(DurationText(each * (runs - ended)));
    }
    ShowProgressText(text);
}

void StudyPanel::ShowProgressText(const QString& text)
{
    m_form->label_Progress->setText(text);
}
