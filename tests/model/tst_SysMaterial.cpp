#include "MaterialStoreTest.h"
#include "XmlFiles.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

/// The system library of materials.
class tst_SysMaterial : public MaterialStoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void TheSystemLibraryIsComplete();
    void TheSystemLibraryFitsItsSchema();
};

void tst_SysMaterial::TheSystemLibraryIsComplete()
{
    QCOMPARE(Store().ReadXML(SourcePath("model/TarnFEMData/SysMaterial.xml").toStdString(),
                             MATERIAL_SYSTEM),
             0);
    QVERIFY(Store().MapDataRow() >= 40);
    const QStringList names = Store().GetMaterialNameList();
    for (const char* const kind :
         {"Steel ", "Stainless steel ", "Cast iron ", "Aluminium ", "Titanium ", "Nickel ",
          "Copper ", "Brass ", "PA 66", "PE-HD", "CFRP", "GFRP", "Glass", "Concrete ", "Wood"})
        QVERIFY2(!QStringList(names).filter(QRegularExpression(QString("^") + kind)).isEmpty(),
                 kind);
    for (const QString& name : names) {
        const KVMaterialInfo& record = *Store().GetMaterialInfo(name);
        const double modulus = record.m_strLibElasticModulus.toDouble();
        const double poisson = record.m_strLibPoisson.toDouble();
        const double density = record.m_strLibDensity.toDouble();
        QVERIFY2(modulus >= 1e6 && modulus <= 7e11, qPrintable(name));
        QVERIFY2(poisson >= 0.0 && poisson < 0.5, qPrintable(name));
        QVERIFY2(density >= 100.0 && density <= 20000.0, qPrintable(name));
    }

    QFile file(SourcePath("model/TarnFEMData/SysMaterial.xml"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    int sources = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QString("Material"))
            sources += xml.attributes().value("source").isEmpty() ? 0 : 1;
    }
    QCOMPARE(sources, Store().MapDataRow());
}

void tst_SysMaterial::TheSystemLibraryFitsItsSchema()
{
    QCOMPARE(Complaints(SourcePath("model/TarnFEMData/SysMaterial.xml"), "Materials.xsd"),
             QString());
}

TARN_TEST_MAIN(tst_SysMaterial)
#include "tst_SysMaterial.moc"
