#include "MeshSizeInput.h"

#include "ElidedTexts.h"
#include "NumberText.h"

MeshSizeInput::MeshSizeInput(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);
}

MeshSizeInput::MeshSizeInput(double meshSize, QWidget* parent)
    : QDialog(parent)
    , m_dMeshSize(meshSize)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    m_ui.lineEdit_MeshSize->setText(tarn::NumberText(m_dMeshSize));
}

MeshSizeInput::~MeshSizeInput() = default;

double MeshSizeInput::GetMeshSize()
{
    m_dMeshSize = m_ui.lineEdit_MeshSize->text().toDouble();
    return m_dMeshSize;
}
