#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <support/Text.h>
#include <support/pictures/ElementSheets.h>

using namespace TARN::Gallery;

namespace {

/// What looks different in an application that has the theme's stylesheet.
struct StyledElement
{
    const char *name;
    const char *reason;
};

constexpr const char *ownHeaders = "The stylesheet has headers of its own.";
constexpr const char *partOnItsOwn =
    "Asked for it apart from its widget, the style that reads stylesheets paints the toolkit's.";

constexpr StyledElement styledElements[] = {
    {"CC_ToolButton", partOnItsOwn},
    {"CE_Header", ownHeaders},
    {"CE_HeaderEmptyArea", ownHeaders},
    {"CE_HeaderSection", ownHeaders},
    {"CE_PushButtonLabel", partOnItsOwn},
    {"CE_ScrollBarAddLine", partOnItsOwn},
    {"CE_ScrollBarSlider", partOnItsOwn},
    {"CE_ScrollBarSubLine", partOnItsOwn},
    {"PE_IndicatorBranch", "Branches are painted for the option of an item only."},
    {"PE_IndicatorTabClose", partOnItsOwn},
};

} // namespace

/// How elements look from right to left, and in an application that has the theme's stylesheet.
class StyledPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void rightToLeft();
    void throughTheApplication();
};

void StyledPicturesTest::initTestCase()
{
    TARN::BaseTheme(text(MOX_SHIPPED_THEMES "/Dark")).customize(qApp);
}

void StyledPicturesTest::rightToLeft()
{
    const TARN::BaseStyle style;
    PictureSheet sheet;
    for (const ElementFamily &family : elementFamilies()) {
        addPictures(sheet, family, style, Qt::RightToLeft, SheetStates::First);
    }
    const QStringList problems = compareWithReference(sheet, text("Dark"), text("right-to-left"));
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
}

void StyledPicturesTest::throughTheApplication()
{
    QVERIFY(QApplication::style()->inherits("QStyleSheetStyle"));
    const TARN::BaseStyle style;
    QMap<QString, QString> changes;
    for (const ElementFamily &family : elementFamilies()) {
        PictureSheet bare;
        PictureSheet styled;
        addPictures(bare, family, style);
        addPictures(styled, family, *QApplication::style());
        for (const QString &difference : styled.differences(bare)) {
            changes[difference.section(u',', 0, 0)] = difference;
        }
    }
    for (const StyledElement &element : styledElements) {
        QVERIFY2(changes.remove(text(element.name)) == 1,
                 qPrintable(text("%1 looks the same, though: %2")
                                .arg(text(element.name), text(element.reason))));
    }
    QVERIFY2(changes.isEmpty(), qPrintable(QStringList(changes.values()).join(u'\n')));
}

int main(int argc, char **argv)
{
    setReferenceEnvironment("1");
    const QApplication application(argc, argv);
    StyledPicturesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "StyledPicturesTest.moc"
