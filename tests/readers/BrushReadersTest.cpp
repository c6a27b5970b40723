#include <readers/LinearGradientBrushReader.h>
#include <readers/SolidBrushReader.h>

#include <QtTest/QtTest>
#include <QtXml/QDomDocument>

namespace {

QDomElement element(const QString &xml)
{
    QDomDocument document;
    if (!document.setContent(xml)) {
        qFatal("The test's element is not well-formed");
    }
    return document.documentElement();
}

const QMap<QString, QColor> colors{{QStringLiteral("Red"), Qt::red},
                                   {QStringLiteral("Blue"), Qt::blue},
                                   {QStringLiteral("Invalid"), QColor()}};

} // namespace

/// Brush elements, each read on its own.
class BrushReadersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void solidBrush_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<bool>("sound");
        QTest::newRow("known colour") << QStringLiteral("<SolidBrush>Red</SolidBrush>") << true;
        QTest::newRow("other attributes")
            << QStringLiteral("<SolidBrush name='' internal='x'>Red</SolidBrush>") << true;
        QTest::newRow("blanks") << QStringLiteral("<SolidBrush> Red </SolidBrush>") << false;
        QTest::newRow("unknown") << QStringLiteral("<SolidBrush>Green</SolidBrush>") << false;
        QTest::newRow("case") << QStringLiteral("<SolidBrush>red</SolidBrush>") << false;
        QTest::newRow("literal") << QStringLiteral("<SolidBrush>#ff0000</SolidBrush>") << false;
        QTest::newRow("empty") << QStringLiteral("<SolidBrush/>") << false;
        QTest::newRow("invalid colour")
            << QStringLiteral("<SolidBrush>Invalid</SolidBrush>") << false;
    }

    void solidBrush()
    {
        QFETCH(QString, xml);
        QFETCH(bool, sound);
        bool ok = !sound;
        const QBrush brush = SolidBrushReader().readBrush(element(xml), colors, ok);
        QCOMPARE(ok, sound);
        QCOMPARE(brush.style(), Qt::SolidPattern);
        if (sound) {
            QCOMPARE(brush.color(), QColor(Qt::red));
        }
    }

    void points_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("sound");
        QTest::addColumn<QPointF>("point");
        QTest::newRow("integers") << QStringLiteral("0,1") << true << QPointF(0, 1);
        QTest::newRow("decimals") << QStringLiteral(".5,1") << true << QPointF(0.5, 1);
        QTest::newRow("negative") << QStringLiteral("-1.5,2e1") << true << QPointF(-1.5, 20);
        QTest::newRow("semicolon") << QStringLiteral("0;0") << false << QPointF();
        QTest::newRow("three") << QStringLiteral("0,0,1") << false << QPointF();
        QTest::newRow("one") << QStringLiteral("1") << false << QPointF();
        QTest::newRow("empty") << QString() << false << QPointF();
        QTest::newRow("empty x") << QStringLiteral(",1") << false << QPointF(0, 1);
        QTest::newRow("not a number") << QStringLiteral("1,a") << false << QPointF(1, 0);
    }

    void points()
    {
        QFETCH(QString, text);
        QFETCH(bool, sound);
        QFETCH(QPointF, point);
        bool ok = !sound;
        QCOMPARE(LinearGradientBrushReader().parsePoint(text, ok), point);
        QCOMPARE(ok, sound);
    }

    void gradient()
    {
        bool ok = false;
        const QBrush brush = LinearGradientBrushReader().readBrush(
            element(QStringLiteral("<LinearGradientBrush startPoint='0,0' endPoint='.5,1'>"
                                   "<GradientStop offset='1'>Blue</GradientStop><Other/>"
                                   "<GradientStop offset='0.25'>Red</GradientStop>"
                                   "</LinearGradientBrush>")),
            colors, ok);
        QVERIFY(ok);
        QCOMPARE(brush.style(), Qt::LinearGradientPattern);
        const auto *gradient = static_cast<const QLinearGradient *>(brush.gradient());
        QCOMPARE(gradient->coordinateMode(), QGradient::ObjectBoundingMode);
        QCOMPARE(gradient->start(), QPointF(0, 0));
        QCOMPARE(gradient->finalStop(), QPointF(0.5, 1));
        QCOMPARE(gradient->stops(), QGradientStops({{0.25, Qt::red}, {1.0, Qt::blue}}));
    }

    void gradientSoundness_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QString>("stops");
        QTest::addColumn<bool>("sound");
        const QString points = QStringLiteral("startPoint='0,0' endPoint='0,1'");
        const QString red = QStringLiteral("<GradientStop offset='0'>Red</GradientStop>");
        QTest::newRow("sound") << points << red << true;
        QTest::newRow("no stops") << points << QString() << true;
        QTest::newRow("no start") << QStringLiteral("endPoint='0,1'") << red << false;
        QTest::newRow("no end") << QStringLiteral("startPoint='0,1'") << red << false;
        QTest::newRow("faulty end")
            << QStringLiteral("startPoint='0,0' endPoint='0,0,1'") << red << false;
        QTest::newRow("no offset")
            << points << QStringLiteral("<GradientStop>Red</GradientStop>") << false;
        QTest::newRow("unknown colour, then a sound stop")
            << points << QStringLiteral("<GradientStop offset='1'>Green</GradientStop>") + red
            << false;
    }

    void gradientSoundness()
    {
        QFETCH(QString, attributes);
        QFETCH(QString, stops);
        QFETCH(bool, sound);
        const QDomElement brush =
            element(QStringLiteral("<LinearGradientBrush ") + attributes + QLatin1Char('>') +
                    stops + QStringLiteral("</LinearGradientBrush>"));
        bool ok = !sound;
        LinearGradientBrushReader().readBrush(brush, colors, ok);
        QCOMPARE(ok, sound);
    }

    void stopsOfAGradient()
    {
        const auto gradientOf = [](int stops) {
            return element(
                QStringLiteral("<LinearGradientBrush name='Many' startPoint='0,0' "
                               "endPoint='0,1'>") +
                QStringLiteral("<GradientStop offset='0'>Red</GradientStop>").repeated(stops) +
                QStringLiteral("</LinearGradientBrush>"));
        };
        bool ok = false;
        LinearGradientBrushReader().readBrush(gradientOf(1024), colors, ok);
        QVERIFY(ok);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Many is not used")));
        const QBrush brush = LinearGradientBrushReader().readBrush(gradientOf(1025), colors, ok);
        QVERIFY(!ok);
        QCOMPARE(brush, QBrush());
    }

    void stopOutsideTheGradientIsLeftToTheGradient()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("range 0 to 1")));
        bool ok = false;
        const QBrush brush = LinearGradientBrushReader().readBrush(
            element(QStringLiteral("<LinearGradientBrush startPoint='0,0' endPoint='0,1'>"
                                   "<GradientStop offset='2'>Red</GradientStop>"
                                   "<GradientStop offset='1'>Blue</GradientStop>"
                                   "</LinearGradientBrush>")),
            colors, ok);
        QVERIFY(ok);
        QCOMPARE(brush.gradient()->stops(), QGradientStops({{1.0, Qt::blue}}));
    }

    void stopOfUnknownColorIsKept()
    {
        bool ok = true;
        const QBrush brush = LinearGradientBrushReader().readBrush(
            element(QStringLiteral("<LinearGradientBrush startPoint='0,0' endPoint='0,1'>"
                                   "<GradientStop offset='0'>Green</GradientStop>"
                                   "<GradientStop offset='1'>Red</GradientStop>"
                                   "</LinearGradientBrush>")),
            colors, ok);
        QVERIFY(!ok);
        QCOMPARE(brush.gradient()->stops().size(), 2);
    }
};

QTEST_MAIN(BrushReadersTest)
#include "BrushReadersTest.moc"
