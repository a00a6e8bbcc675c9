#include "MatrixArrayDlg.h"

#include "ElidedTexts.h"

#include <QtGlobal>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QRegExpValidator>
using Pattern = QRegExp;
using PatternValidator = QRegExpValidator;
#else
#include <QRegularExpressionValidator>
using Pattern = QRegularExpression;
using PatternValidator = QRegularExpressionValidator;
#endif

MatrixArrayDlg::MatrixArrayDlg(QDialog* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pushButtonCancel, SIGNAL(clicked()), this, SLOT(close()));
    connect(m_ui.pushButtonCancel, SIGNAL(clicked()), this, SLOT(m_slot_CancelPushed()));
    auto* const count =
        new PatternValidator(Pattern(QStringLiteral("[0-9]{1,4}")), m_ui.lineEdit_XNum);
    m_ui.lineEdit_XNum->setValidator(count);
    m_ui.lineEdit_YNum->setValidator(count);
    connect(m_ui.pushButtonOK, SIGNAL(clicked()), this, SLOT(m_slot_OkPushed()));
}

MatrixArrayDlg::~MatrixArrayDlg() = default;

sMatrixArraydata MatrixArrayDlg::GetArrayParameter() const
{
    return m_data;
}

void MatrixArrayDlg::m_slot_OkPushed()
{
    m_data.m_dXDistance = m_ui.lineEdit_XDis->text().toDouble();
    m_data.m_dYDistance = m_ui.lineEdit_YDis->text().toDouble();
    m_data.m_nXNumber = m_ui.lineEdit_XNum->text().toInt();
    m_data.m_nYNumber = m_ui.lineEdit_YNum->text().toInt();
    accept();
}

void MatrixArrayDlg::m_slot_CancelPushed() {}
