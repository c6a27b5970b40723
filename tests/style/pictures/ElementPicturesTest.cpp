#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <support/Text.h>
#include <support/pictures/ElementSheets.h>

using namespace TARN::Gallery;

/// Every element that can be shown, in every state, looks as it did when somebody last looked.
class ElementPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Each in a process of its own: the style keeps values of the theme.
    void dark() { checkTheme(text("Dark")); }
    void light() { checkTheme(text("Light")); }
    void highContrast() { checkTheme(text("HighContrast")); }

private:
    static void checkTheme(const QString &theme);
};

void ElementPicturesTest::checkTheme(const QString &theme)
{
    TARN::BaseTheme(text(MOX_SHIPPED_THEMES "/") + theme).customize(qApp);
    // Without the application's stylesheet, which has ideas of its own about parts of widgets.
    const TARN::BaseStyle style;
    QStringList problems;
    for (const ElementFamily &family : elementFamilies()) {
        PictureSheet sheet;
        addPictures(sheet, family, style);
        for (const QString &line : compareWithReference(sheet, theme, family.id)) {
            problems.append(theme + text(", ") + family.title + text(": ") + line);
        }
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
}

int main(int argc, char **argv)
{
    setReferenceEnvironment(MOX_SCALE);
    const QApplication application(argc, argv);
    ElementPicturesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ElementPicturesTest.moc"
