#include <catalogue/Elements.h>

#include <QtTest/QtTest>

#include <support/Text.h>

namespace {

/// What the base style only puts together: it asks the outermost style for each part.
const QStringList composites{
    text("PE_IndicatorItemViewItemCheck"), // a check box
    text("CE_TabBarTab"),                  // shape and label
    text("CE_ProgressBar"),                // groove, contents and label
    text("CE_Header"),                     // section, label and arrow
    text("CE_ToolBoxTab"),                 // shape and label
};

void addLeft(QStringList &names, const QVector<TARN::StyleElement> &table)
{
    for (const TARN::StyleElement &row : table) {
        if (!row.isPaintedInCompleteMode) {
            names.append(text(row.name));
        }
    }
}

} // namespace

/// In the complete mode the style paints everything: nothing but composites is left to the base
/// style.
class CompositesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingElseIsLeftToTheBaseStyle();
};

void CompositesTest::nothingElseIsLeftToTheBaseStyle()
{
    QStringList left;
    addLeft(left, TARN::Catalogue::primitives());
    addLeft(left, TARN::Catalogue::controls());
    addLeft(left, TARN::Catalogue::complexControls());
    for (const QString &composite : composites) {
        left.removeOne(composite);
    }
    QCOMPARE(left.join(u' '), QString());
}

QTEST_MAIN(CompositesTest)
#include "CompositesTest.moc"
