#include "readers/ConfigurationFile.h"

#include <readers/ThemeConfiguration.h>
#include <resources/ThemeColorHelper.h>

#include <QtTest/QtTest>

#include <support/Text.h>
#include <support/Variables.h>

namespace {

const QColor grey(0x20, 0x20, 0x20);

ThemeConfiguration configurationWithFactor(int percent)
{
    ThemeConfiguration configuration;
    configuration.factors =
        "<Factor name='DarkBackgroundDisableFactor'>" + QByteArray::number(percent) + "</Factor>";
    configuration.colors = "<Color name='A'>#202020</Color>";
    configuration.brushes = "<SolidBrush name='B'>DisabledA</SolidBrush>";
    return configuration;
}

} // namespace

/// Reading a configuration file without publishing what it says.
class ThemeConfigurationTest : public QObject
{
    Q_OBJECT

private:
    ConfigurationFile m_file;

private Q_SLOTS:
    void nothingIsPublishedOrKept()
    {
        const QString path = m_file.write(configurationWithFactor(150));
        qApp->setProperty("theme_var_internal", 7);
        QCOMPARE(TARN::readConfiguration(path).disabledFactors.size(), 1);
        QCOMPARE(qApp->property("theme_var_internal"), QVariant(7));
        publishFactors({{text("DarkBackgroundDisableFactor"), 300}});
        QCOMPARE(TARN::ThemeColorHelper::disabled(grey, false), grey.lighter(300));
    }

    void colorsAreDisabledByTheFilesFactors()
    {
        publishFactors({{text("DarkBackgroundDisableFactor"), 300}});
        QCOMPARE(TARN::ThemeColorHelper::disabled(grey, false), grey.lighter(300));
        const QString path = m_file.write(configurationWithFactor(150));
        const TARN::ThemeConfiguration read = TARN::readConfiguration(path);
        QCOMPARE(read.colors.value(text("DisabledA")), grey.lighter(150));
        QCOMPARE(read.brushes.value(text("B")), QBrush(grey.lighter(150)));
    }

    /// A factor that a file leaves out leaves colours as they are.
    void absentFactorsLeaveTheColor()
    {
        ThemeConfiguration configuration = configurationWithFactor(150);
        configuration.factors.clear();
        const TARN::ThemeConfiguration read = TARN::readConfiguration(m_file.write(configuration));
        QCOMPARE(read.colors.value(text("DisabledA")), grey);
    }

    void isWhatTheReaderHolds()
    {
        const ThemeConfiguration configuration = configurationWithFactor(150);
        const TARN::ThemeConfigurationReader reader = m_file.read(configuration);
        const TARN::ThemeConfiguration read = TARN::readConfiguration(m_file.write(configuration));
        QCOMPARE(int(read.status), reader.getStatus());
        QCOMPARE(read.colors, reader.getColorsMap());
        QCOMPARE(read.internalColors, reader.getInternalColorsMap());
        QCOMPARE(read.brushes, reader.getBrushesMap());
        QCOMPARE(read.internalBrushes, reader.getInternalBrushesMap());
        QCOMPARE(read.opacities, reader.getOpacitiesMap());
        QCOMPARE(read.cornerRadii, reader.getCornerRadiusMap());
        QCOMPARE(read.disabledFactors, reader.getDisabledFactorsMap());
        QCOMPARE(read.font.toVariantMap(), reader.getFont().toVariantMap());
    }

    void statusTellsHowItWent()
    {
        ThemeConfiguration configuration;
        QCOMPARE(TARN::readConfiguration(m_file.write(configuration)).status, TARN::ReadFine);
        QCOMPARE(TARN::readConfiguration(m_file.path(text("none.xml"))).status, TARN::CannotOpen);
        configuration.factors = "<Factor/>";
        QCOMPARE(TARN::readConfiguration(m_file.write(configuration)).status, TARN::Faulty);
    }
};

QTEST_MAIN(ThemeConfigurationTest)
#include "ThemeConfigurationTest.moc"
