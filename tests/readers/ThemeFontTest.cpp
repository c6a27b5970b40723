#include <readers/ThemeConfigurationReader.h>
#include <readers/ThemeFont.h>

#include <QtTest/QtTest>

#include <support/ThemeRepository.h>

using TARN::ThemeConfigurationReader;
using TARN::ThemeFont;

/// The fonts of a theme: how a configuration file gives them, and the names under which they are
/// published.
class ThemeFontTest : public QObject
{
    Q_OBJECT

private:
    ThemeRepository m_files;

    ThemeConfigurationReader read(const ThemeConfiguration &configuration) const
    {
        return ThemeConfigurationReader(
            m_files.write(QStringLiteral("config.xml"), configuration.toXml()));
    }

private Q_SLOTS:
    void startsWithTheApplicationFont()
    {
        QApplication::setFont(QFont(QStringLiteral("Serif"), 23));
        const QVariantMap published = ThemeFont().toVariantMap();
        QCOMPARE(published.keys(),
                 QStringList({QStringLiteral("base"), QStringLiteral("large"),
                              QStringLiteral("medium"), QStringLiteral("small")}));
        for (const QVariant &font : published) {
            QCOMPARE(font.userType(), int(QMetaType::QFont));
            QCOMPARE(font.value<QFont>(), QFont());
            QCOMPARE(font.value<QFont>().pointSize(), 23);
        }
    }

    void startsWithTheFontThatItIsGiven()
    {
        const QFont font(QStringLiteral("Serif"), 23);
        ThemeConfiguration configuration;
        configuration.font =
            "<Family>Sans</Family><SmallSize>8</SmallSize><BaseSize>9pt</BaseSize>";
        const QString path = m_files.write(QStringLiteral("config.xml"), configuration.toXml());
        const ThemeFont read = ThemeConfigurationReader(path, font).getFont();
        QCOMPARE(read.getFont(ThemeFont::Small).pointSize(), 8);
        for (const auto size : {ThemeFont::Base, ThemeFont::Medium, ThemeFont::Large}) {
            QCOMPARE(ThemeFont(font).getFont(size), font);
            QCOMPARE(read.getFont(size), font);
        }
    }

    void sizesAreApart()
    {
        ThemeFont font;
        font.setFont(ThemeFont::Small, QFont(QStringLiteral("Sans"), 7));
        font.setFont(ThemeFont::Large, QFont(QStringLiteral("Sans"), 20));
        const ThemeFont copy = font;
        font.setFont(ThemeFont::Small, QFont());
        QCOMPARE(copy.getFont(ThemeFont::Small).pointSize(), 7);
        QCOMPARE(copy.getFont(ThemeFont::Large).pointSize(), 20);
        QCOMPARE(copy.getFont(ThemeFont::Base), QFont());
        QCOMPARE(copy.toVariantMap().value(QStringLiteral("large")).value<QFont>().pointSize(), 20);
    }

    void sizesAreNamed()
    {
        QCOMPARE(ThemeFont::getFontsLabels(),
                 QVector<QString>({QStringLiteral("small"), QStringLiteral("base"),
                                   QStringLiteral("medium"), QStringLiteral("large")}));
        QCOMPARE(ThemeFont::getFontName(ThemeFont::Small), QStringLiteral("small"));
        QCOMPARE(ThemeFont::getFontName(ThemeFont::Base), QStringLiteral("base"));
        QCOMPARE(ThemeFont::getFontName(ThemeFont::Medium), QStringLiteral("medium"));
        QCOMPARE(ThemeFont::getFontName(ThemeFont::Large), QStringLiteral("large"));
        QCOMPARE(int(ThemeFont::Small), 0);
        QCOMPARE(int(ThemeFont::Base), 1);
        QCOMPARE(int(ThemeFont::Medium), 2);
        QCOMPARE(int(ThemeFont::Large), 3);
    }

    void fontsAreRead()
    {
        ThemeConfiguration configuration;
        configuration.font = "<Family>Sans</Family><Weight>Bold</Weight><SmallSize>8</SmallSize>"
                             "<BaseSize>10</BaseSize><MediumSize>12</MediumSize>"
                             "<LargeSize>16</LargeSize>";
        const ThemeFont font = read(configuration).getFont();
        QCOMPARE(font.getFont(ThemeFont::Small), QFont(QStringLiteral("Sans"), 8, 75));
        QCOMPARE(font.getFont(ThemeFont::Base), QFont(QStringLiteral("Sans"), 10, 75));
        QCOMPARE(font.getFont(ThemeFont::Medium), QFont(QStringLiteral("Sans"), 12, 75));
        QCOMPARE(font.getFont(ThemeFont::Large), QFont(QStringLiteral("Sans"), 16, 75));
        QVERIFY(!font.getFont(ThemeFont::Base).italic());
    }

    void firstFaultyFontSizeEndsTheFonts()
    {
        ThemeConfiguration configuration;
        configuration.font = "<Family>Sans</Family><SmallSize>8</SmallSize>"
                             "<BaseSize>12pt</BaseSize><MediumSize>12</MediumSize>"
                             "<LargeSize>16</LargeSize>";
        const ThemeConfigurationReader reader = read(configuration);
        QCOMPARE(reader.getStatus(), 2);
        QCOMPARE(reader.getFont().getFont(ThemeFont::Small), QFont(QStringLiteral("Sans"), 8));
        for (const auto id : {ThemeFont::Base, ThemeFont::Medium, ThemeFont::Large}) {
            QCOMPARE(reader.getFont().getFont(id), QFont());
        }
    }

    void weights_data()
    {
        QTest::addColumn<int>("weight");
        QTest::newRow("Thin") << 0;
        QTest::newRow("ExtraLight") << 12;
        QTest::newRow("Light") << 25;
        QTest::newRow("Normal") << 50;
        QTest::newRow("Medium") << 57;
        QTest::newRow("DemiBold") << 63;
        QTest::newRow("Bold") << 75;
        QTest::newRow("ExtraBold") << 81;
        QTest::newRow("Black") << 87;
        QTest::newRow("bold") << 50;
        QTest::newRow("Heavy") << 50;
        QTest::newRow("") << 50;
    }

    void weights()
    {
        QFETCH(int, weight);
        ThemeConfiguration configuration;
        configuration.font += QByteArray("<Weight>") + QTest::currentDataTag() + "</Weight>";
        QCOMPARE(read(configuration).getFont().getFont(ThemeFont::Large).weight(), weight);
    }
};

QTEST_MAIN(ThemeFontTest)
#include "ThemeFontTest.moc"
