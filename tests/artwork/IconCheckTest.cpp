#include "support/MessageRecorder.h"
#include "support/Text.h"

#include <QtTest/QtTest>

#include <icons/IconCheck.h>

using namespace TARN::Artwork;

namespace {

const Palette palette = {{text("ink"), text("#E5EEF4")}, {text("red"), text("#E5484D")}};

QByteArray svg(const QByteArray &shapes, int side = 16)
{
    const QByteArray form = R"(<svg xmlns="http://www.w3.org/2000/svg" width="%1" height="%1" )"
                            R"(viewBox="0 0 %1 %1" fill="#E5EEF4">%2</svg>)";
    return QString::fromLatin1(form).arg(side).arg(QString::fromLatin1(shapes)).toLatin1();
}

QString findings(const char *name, const QByteArray &file)
{
    return checkIcons({{text(name), file}}, palette).join(QLatin1Char('\n'));
}

const QByteArray square = R"(<rect x="3" y="3" width="10" height="10"/>)";

} // namespace

class IconCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aGoodIconHasNoFinding();
    void names_data();
    void names();
    void colors_data();
    void colors();
    void elements_data();
    void elements();
    void coverage_data();
    void coverage();
    void edges();
    void likenesses();
};

void IconCheckTest::aGoodIconHasNoFinding()
{
    QCOMPARE(findings("action.test", svg(square)), QString());
    QCOMPARE(findings("view.layer.3d.24x", svg(square, 24)), QString());
}

void IconCheckTest::names_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("finding");
    const QString form = text("not lower-case words joined by dots");
    QTest::newRow("one word") << QByteArray("action") << form;
    QTest::newRow("capital") << QByteArray("action.Copy") << form;
    QTest::newRow("dash") << QByteArray("action.copy-all") << form;
    QTest::newRow("empty word") << QByteArray("action..copy") << form;
    QTest::newRow("unknown size") << QByteArray("action.copy.20x") << form;
    QTest::newRow("family") << QByteArray("fruit.apple") << text("of no family");
}

void IconCheckTest::names()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QString, finding);
    QVERIFY(findings(name.constData(), svg(square)).contains(finding));
}

void IconCheckTest::colors_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("color");
    QTest::addColumn<bool>("isAllowed");
    QTest::newRow("of the palette")
        << QByteArray("action.test.colored") << QByteArray("#E5484D") << true;
    QTest::newRow("not of the palette")
        << QByteArray("action.test.colored") << QByteArray("#E5484E") << false;
    QTest::newRow("a name") << QByteArray("action.test.colored") << QByteArray("red") << false;
    QTest::newRow("not to be coloured")
        << QByteArray("action.test") << QByteArray("#E5484D") << false;
    QTest::newRow("a family of colours")
        << QByteArray("mimetype.test") << QByteArray("#E5484D") << true;
    QTest::newRow("coloured and sized")
        << QByteArray("status.test.colored.24x") << QByteArray("#E5484D") << true;
}

void IconCheckTest::colors()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, color);
    QFETCH(const bool, isAllowed);
    const QByteArray file =
        svg(QByteArray(R"(<rect x="3" y="3" width="10" height="10" fill="COLOR"/>)")
                .replace("COLOR", color));
    QCOMPARE(findings(name.constData(), file).isEmpty(), isAllowed);
}

void IconCheckTest::elements_data()
{
    QTest::addColumn<QByteArray>("shapes");
    QTest::newRow("text") << QByteArray(R"(<text x="3" y="3">A</text>)");
    QTest::newRow("group") << QByteArray("<g>" + square + "</g>");
    QTest::newRow("image") << QByteArray(R"(<image width="3" height="3"/>)");
    QTest::newRow("style") << QByteArray(R"(<path style="fill:red" d="M2 2h4v4z"/>)");
    QTest::newRow("id") << QByteArray(R"(<path id="path1" d="M2 2h4v4z"/>)");
}

void IconCheckTest::elements()
{
    QFETCH(const QByteArray, shapes);
    // The toolkit has warnings of its own to give.
    const MessageRecorder warnings;
    QVERIFY(findings("action.test", svg(square + shapes))
                .contains(text("holds more than plain shapes")));
}

void IconCheckTest::coverage_data()
{
    QTest::addColumn<QByteArray>("shapes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("too little") << QByteArray(R"(<rect x="3" y="3" width="3" height="4"/>)");
    QTest::newRow("too much") << QByteArray(R"(<rect x=".5" y=".5" width="15" height="15"/>)");
}

void IconCheckTest::coverage()
{
    QFETCH(const QByteArray, shapes);
    QVERIFY(findings("action.test", svg(shapes)).contains(text("covers")));
}

void IconCheckTest::edges()
{
    const QByteArray atEdge = R"(<rect x="0" y="6" width="6" height="6"/>)";
    QVERIFY(findings("action.test", svg(atEdge)).contains(text("touches the edge")));
    const QByteArray atMargin = R"(<rect x="1" y="6" width="14" height="6"/>)";
    QVERIFY(!findings("action.test", svg(atMargin)).contains(text("touches the edge")));
}

void IconCheckTest::likenesses()
{
    // A pixel more is 1 percent of the square, a row more 10 percent.
    const QByteArray pixelMore = square + R"(<rect x="13" y="3" width="1" height="1"/>)";
    const QByteArray rowMore = square + R"(<rect x="3" y="13" width="10" height="1"/>)";
    const QByteArray red = R"(<rect x="3" y="3" width="10" height="10" fill="#E5484D"/>)";
    const auto pair = [](const QByteArray &other) {
        return checkIcons({{text("status.one.colored"), svg(square)},
                           {text("status.two.colored"), svg(other)}},
                          palette)
            .join(QLatin1Char('\n'));
    };
    QVERIFY(pair(square).contains(text("status.one.colored status.two.colored: look alike")));
    QVERIFY(pair(pixelMore).contains(text("look alike")));
    QCOMPARE(pair(rowMore), QString());
    QCOMPARE(pair(red), QString());

    const QMap<QString, QByteArray> icons = {{text("action.one"), svg(square)},
                                             {text("action.two"), svg(rowMore)}};
    QCOMPARE(similarIcons(icons, 0.05), QStringList());
    QVERIFY(similarIcons(icons, 0.2).first().endsWith(text("action.one action.two")));
}

QTEST_MAIN(IconCheckTest)
#include "IconCheckTest.moc"
