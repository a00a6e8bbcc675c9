#include "SolverPaths.h"

#include "ui_HostPrograms.h"

#include "AnalysisTools.h"
#include "ExternalSolverOption.h"
#include "HostError.h"
#include "UserSettings.h"

#include <QFileDialog>
#include <QMessageBox>

#include <utility>
#include <vector>

namespace {

/// The dialog with the paths of this host's programs.
class Paths
{
public:
    explicit Paths(QWidget* window)
        : m_dialog(window)
    {
        AddOwnPrograms();
        const Ui::ExternalSolverOption& ui = m_dialog.ui;
        m_others = {{"ansys", ui.lineEdit_Ansys},     {"abaqus", ui.lineEdit_Abaqus},
                    {"nastran", ui.lineEdit_Nastran}, {"fluent", ui.lineEdit_4},
                    {"openfoam", ui.lineEdit_5},      {"oofem", ui.lineEdit_6},
                    {"hfss", ui.lineEdit_7},          {"cst", ui.lineEdit_8},
                    {"comsol", ui.lineEdit_9}};
        Load();
        LetPick(ui.pushButton_3, ui.lineEdit_Ansys);
        LetPick(ui.pushButton_4, ui.lineEdit_Abaqus);
        LetPick(m_own.mesherButton, m_own.mesherEdit);
        LetPick(m_own.solverButton, m_own.solverEdit);
        QObject::connect(ui.pushButton, &QPushButton::clicked, &m_dialog, [this] { Accept(); });
        QObject::connect(ui.pushButton_2, &QPushButton::clicked, &m_dialog, &QDialog::reject);
        ui.pushButton->setDefault(true);
    }

    void Run() { m_dialog.exec(); }

private:
    // Between the other programs and the buttons.
    void AddOwnPrograms()
    {
        const Ui::ExternalSolverOption& ui = m_dialog.ui;
        auto* const content = new QWidget(&m_dialog);
        m_own.setupUi(content);
        const int height = content->sizeHint().height();
        const QRect above = ui.groupBox->geometry();
        content->setGeometry(above.left(), above.bottom(), above.width(), height);
        for (QPushButton* const button : {ui.pushButton, ui.pushButton_2})
            button->move(button->x(), button->y() + height);
        m_dialog.resize(m_dialog.width(), m_dialog.height() + height);
        QWidget::setTabOrder(ui.lineEdit_9, m_own.mesherEdit);
        QWidget::setTabOrder(m_own.mesherEdit, m_own.mesherButton);
        QWidget::setTabOrder(m_own.mesherButton, m_own.solverEdit);
        QWidget::setTabOrder(m_own.solverEdit, m_own.solverButton);
        QWidget::setTabOrder(m_own.solverButton, ui.pushButton);
    }

    static QString KeyOf(const char* program)
    {
        return QStringLiteral("solvers/%1").arg(QLatin1String(program));
    }

    void Load()
    {
        const UserSettings settings;
        for (const auto& [program, edit] : m_others)
            edit->setText(settings.value(KeyOf(program)).toString());
        const AnalysisTools tools = AnalysisTools::Stored();
        m_own.mesherEdit->setText(tools.mesher.path);
        m_own.solverEdit->setText(tools.solver.path);
    }

    void LetPick(QPushButton* button, QLineEdit* edit)
    {
        QObject::connect(button, &QPushButton::clicked, edit, [this, edit] {
            const QString path = QFileDialog::getOpenFileName(&m_dialog, QString(), edit->text());
            if (!path.isEmpty())
                edit->setText(path);
        });
    }

    void Accept()
    {
        AnalysisTools tools = AnalysisTools::Stored();
        tools.mesher.path = m_own.mesherEdit->text().trimmed();
        tools.solver.path = m_own.solverEdit->text().trimmed();
        try {
            // An empty path is allowed: the program may be installed later.
            for (const AnalysisTool& tool : {tools.mesher, tools.solver}) {
                if (!tool.path.isEmpty())
                    tool.Executable();
            }
        } catch (const HostError& error) {
            QMessageBox::warning(&m_dialog, m_own.title->text(), error.Reason());
            return;
        }
        tools.Store();
        UserSettings settings;
        for (const auto& [program, edit] : m_others)
            settings.setValue(KeyOf(program), edit->text());
        m_dialog.accept();
    }

    ExternalSolverOption m_dialog;
    Ui::HostPrograms m_own;
    std::vector<std::pair<const char*, QLineEdit*>> m_others;
};

} // namespace

void EditSolverPaths(QWidget* window)
{
    Paths(window).Run();
}
