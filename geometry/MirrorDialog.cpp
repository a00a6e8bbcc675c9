#include "MirrorDialog.h"

#include "CoordinateInput.h"
#include "ElidedTexts.h"
#include "ModalLoop.h"

#include <GC_MakeMirror.hxx>
#include <Geom_Transformation.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

MirrorDialog::MirrorDialog(QDialog* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pushButton_OK, SIGNAL(clicked()), this, SLOT(m_Slot_OK_Pushed()));
}

MirrorDialog::~MirrorDialog() = default;

void MirrorDialog::GetMirrorData(gp_Trsf& transform) const
{
    transform = m_transform;
}

int MirrorDialog::exec()
{
    return tarn::RunModalLoop(*this);
}

void MirrorDialog::m_Slot_OK_Pushed()
{
    if (m_ui.radioButton->isChecked()) {
        // Hosts rely on the origin, so the fields of this mode are not used.
        m_transform = GC_MakeMirror(gp_Pnt(0.0, 0.0, 0.0)).Value()->Trsf();
    } else if (m_ui.radioButton_2->isChecked()) {
        const gp_Dir direction(
            tarn::Coordinates(*m_ui.lineEdit_axisX, *m_ui.lineEdit_axisY, *m_ui.lineEdit_axisZ));
        const gp_Pnt point(tarn::Coordinates(*m_ui.lineEdit_axisPtX, *m_ui.lineEdit_axisPtY,
                                             *m_ui.lineEdit_axisPtZ));
        m_transform = GC_MakeMirror(point, direction).Value()->Trsf();
    }
    accept();
}
