#include "readers/ConfigurationFile.h"

#include <QtTest/QtTest>

#include <support/MessageRecorder.h>
#include <support/Text.h>

using TARN::ThemeConfigurationReader;

namespace {

template <typename T>
QStringList names(const QMap<QString, T> &map)
{
    return map.keys();
}

} // namespace

/// The colours and brushes of a configuration file, and their disabled variants.
class ColorsAndBrushesTest : public QObject
{
    Q_OBJECT

private:
    ConfigurationFile m_file;

private Q_SLOTS:
    void colorsAreSpelled_data()
    {
        QTest::addColumn<QByteArray>("spelling");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("3 digits") << QByteArray("#123") << QColor(0x11, 0x22, 0x33);
        QTest::newRow("6 digits") << QByteArray("#102030") << QColor(0x10, 0x20, 0x30);
        QTest::newRow("alpha") << QByteArray("#80102030") << QColor(0x10, 0x20, 0x30, 0x80);
        QTest::newRow("9 digits") << QByteArray("#100200300") << QColor(0x10, 0x20, 0x30);
        QTest::newRow("12 digits") << QByteArray("#100020003000") << QColor(0x10, 0x20, 0x30);
        QTest::newRow("keyword") << QByteArray("SteelBlue") << QColor(70, 130, 180);
        QTest::newRow("transparent") << QByteArray("transparent") << QColor(0, 0, 0, 0);
        QTest::newRow("with a comment")
            << QByteArray("#10<!-- x -->2030") << QColor(0x10, 0x20, 0x30);
    }

    void colorsAreSpelled()
    {
        QFETCH(QByteArray, spelling);
        QFETCH(QColor, expected);
        ThemeConfiguration configuration;
        configuration.colors = "<Color name='A'>" + spelling + "</Color>";
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(reader.getStatus(), 0);
        QCOMPARE(reader.getColorsMap().value(text("A")).rgba(), expected.rgba());
    }

    void faultyColorsEndTheirList_data()
    {
        QTest::addColumn<QByteArray>("colors");
        const QByteArray sound = "<Color name='X'>red</Color>";
        const QByteArray after = "<Color name='Later'>red</Color>";
        QTest::newRow("no colour") << sound + "<Color name='A'>notacolour</Color>" + after;
        QTest::newRow("blanks") << sound + "<Color name='A'> #ff0000 </Color>" + after;
        QTest::newRow("no text") << sound + "<Color name='A'/>" + after;
        QTest::newRow("no name") << sound + "<Color>blue</Color>" + after;
        QTest::newRow("empty name") << sound + "<Color name=''>blue</Color>" + after;
        QTest::newRow("duplicate") << sound + "<Color name='X'>blue</Color>" + after;
        QTest::newRow("derived name") << sound + "<Color name='DisabledX'>blue</Color>" + after;
    }

    void faultyColorsEndTheirList()
    {
        QFETCH(QByteArray, colors);
        ThemeConfiguration configuration;
        configuration.colors = colors;
        configuration.brushes = "<SolidBrush name='B'>X</SolidBrush>";
        MessageRecorder messages;
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(messages.take(), QStringList());
        QCOMPARE(reader.getStatus(), 2);
        QCOMPARE(names(reader.getColorsMap()), QStringList({text("DisabledX"), text("X")}));
        QCOMPARE(reader.getColorsMap().value(text("X")), QColor(Qt::red));
        QCOMPARE(names(reader.getBrushesMap()), QStringList({text("B"), text("DisabledB")}));
        QCOMPARE(reader.getCornerRadiusMap().size(), 4);
    }

    void disabledNameBeforeItsColorIsOverwritten()
    {
        ThemeConfiguration configuration;
        configuration.factors = "<Factor name='LightBackgroundDisableFactor'>200</Factor>";
        configuration.colors = "<Color name='DisabledX'>#010203</Color>"
                               "<Color name='X'>white</Color>";
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(reader.getStatus(), 0);
        QCOMPARE(reader.getColorsMap().value(text("DisabledX")), QColor(Qt::white).darker(200));
        QVERIFY(reader.getColorsMap().contains(text("DisabledDisabledX")));
    }

    void disabledNamesBeforeTheirEntriesAreOverwrittenEverywhere()
    {
        ThemeConfiguration configuration;
        configuration.factors = "<Factor name='LightBackgroundDisableFactor'>200</Factor>";
        configuration.colors = "<Color name='A'>black</Color>"
                               "<Color name='DisabledM'>#010203</Color>"
                               "<Color name='DisabledX' internal='true'>#010203</Color>"
                               "<Color name='X'>white</Color>";
        configuration.brushes = "<SolidBrush name='DisabledX' internal='true'>A</SolidBrush>"
                                "<SolidBrush name='X'>X</SolidBrush>";
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(reader.getStatus(), 0);
        const QColor derived = QColor(Qt::white).darker(200);
        QCOMPARE(reader.getColorsMap().value(text("DisabledX")), derived);
        QCOMPARE(reader.getInternalColorsMap().value(text("DisabledX")), derived);
        QCOMPARE(reader.getBrushesMap().value(text("DisabledX")), QBrush(derived));
        QCOMPARE(reader.getInternalBrushesMap().value(text("DisabledX")), QBrush(derived));
        // An entry that is merely named like a variant is an entry like any other.
        QCOMPARE(reader.getColorsMap().value(text("DisabledM")), QColor(1, 2, 3));
        QCOMPARE(names(reader.getInternalColorsMap()),
                 QStringList({text("DisabledA"), text("DisabledDisabledM"),
                              text("DisabledDisabledX"), text("DisabledX")}));
    }

    void brushesMayUseDisabledColors()
    {
        ThemeConfiguration configuration;
        configuration.factors = "<Factor name='DarkBackgroundDisableFactor'>200</Factor>";
        configuration.colors = "<Color name='A'>#202020</Color>";
        configuration.brushes = "<SolidBrush name='B'>DisabledA</SolidBrush>";
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(reader.getStatus(), 0);
        QCOMPARE(reader.getBrushesMap().value(text("B")), QBrush(QColor(0x40, 0x40, 0x40)));
    }

    void internalEntries()
    {
        ThemeConfiguration configuration;
        configuration.colors = "<Color name='A' internal='true'>red</Color>"
                               "<Color name='B' internal='True'>red</Color>"
                               "<Color name='C' internal='1'>red</Color>"
                               "<Color name='D'>red</Color>";
        configuration.brushes = "<SolidBrush name='A' internal='true'>A</SolidBrush>"
                                "<SolidBrush name='B' internal='True'>A</SolidBrush>";
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(reader.getStatus(), 0);
        QCOMPARE(reader.getColorsMap().size(), 8);
        QCOMPARE(names(reader.getInternalColorsMap()),
                 QStringList({text("A"), text("DisabledA"), text("DisabledB"), text("DisabledC"),
                              text("DisabledD")}));
        QCOMPARE(names(reader.getInternalBrushesMap()),
                 QStringList({text("A"), text("DisabledA"), text("DisabledB")}));
        QCOMPARE(reader.getInternalColorsMap().value(text("DisabledD")),
                 reader.getColorsMap().value(text("DisabledD")));
    }

    void faultyBrushesEndTheirList_data()
    {
        QTest::addColumn<QByteArray>("faulty");
        QTest::newRow("unknown colour") << QByteArray("<SolidBrush name='Y'>NoColor</SolidBrush>");
        QTest::newRow("unknown kind")
            << QByteArray("<RadialGradientBrush name='Y'>A</RadialGradientBrush>");
        QTest::newRow("no name") << QByteArray("<SolidBrush>A</SolidBrush>");
        QTest::newRow("duplicate") << QByteArray("<SolidBrush name='X'>A</SolidBrush>");
        QTest::newRow("derived name") << QByteArray("<SolidBrush name='DisabledX'>A</SolidBrush>");
        QTest::newRow("faulty gradient")
            << QByteArray("<LinearGradientBrush name='Y' startPoint='0;0' endPoint='0,1'/>");
    }

    void faultyBrushesEndTheirList()
    {
        QFETCH(QByteArray, faulty);
        ThemeConfiguration configuration;
        configuration.colors = "<Color name='A'>red</Color>";
        configuration.brushes = "<!-- passed over --><SolidBrush name='X'>A</SolidBrush>" + faulty +
                                "<SolidBrush name='Later'>A</SolidBrush>";
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(reader.getStatus(), 2);
        QCOMPARE(names(reader.getBrushesMap()), QStringList({text("DisabledX"), text("X")}));
        QCOMPARE(reader.getOpacitiesMap().size(), 0);
        QCOMPARE(reader.getCornerRadiusMap().size(), 4);
    }

    void disabledBrushes()
    {
        ThemeConfiguration configuration;
        configuration.factors = "<Factor name='DarkForegroundDisableFactor'>150</Factor>"
                                "<Factor name='DarkBackgroundDisableFactor'>200</Factor>";
        configuration.colors = "<Color name='A'>#202020</Color>";
        configuration.brushes =
            "<SolidBrush name='Fill'>A</SolidBrush><SolidBrush name='FillForeground'>A</SolidBrush>"
            "<LinearGradientBrush name='Shade' startPoint='0,0' endPoint='0,1'>"
            "<GradientStop offset='0'>A</GradientStop></LinearGradientBrush>";
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(reader.getStatus(), 0);
        const QColor color(0x20, 0x20, 0x20);
        const auto &brushes = reader.getBrushesMap();
        QCOMPARE(brushes.value(text("DisabledFill")), QBrush(color.lighter(200)));
        QCOMPARE(brushes.value(text("DisabledFillForeground")), QBrush(color.lighter(150)));
        QCOMPARE(brushes.value(text("Shade")).style(), Qt::LinearGradientPattern);
        const QColor single = brushes.value(text("Shade")).color();
        QCOMPARE(brushes.value(text("DisabledShade")), QBrush(single.lighter(200)));
    }
};

QTEST_MAIN(ColorsAndBrushesTest)
#include "ColorsAndBrushesTest.moc"
