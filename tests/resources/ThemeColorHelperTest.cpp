#include <common_utils/Helpers.h>
#include <resources/ThemeColorHelper.h>
#include <resources/ThemeResources.h>

#include <QtTest/QtTest>

#include <support/ThemeRepository.h>
#include <support/Variables.h>

using TARN::ThemeColorHelper;

namespace {

const QString lightForeground = QStringLiteral("LightForegroundDisableFactor");
const QString lightBackground = QStringLiteral("LightBackgroundDisableFactor");
const QString darkForeground = QStringLiteral("DarkForegroundDisableFactor");
const QString darkBackground = QStringLiteral("DarkBackgroundDisableFactor");

QColor grey(int value)
{
    return {value, value, value};
}

QIcon squareIcon(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return {pixmap};
}

QColor centre(const QIcon &icon)
{
    return icon.pixmap(16, 16).toImage().pixelColor(8, 8);
}

/// Makes an icon \a file of one colour.
bool saveIcon(const QString &file, const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return pixmap.save(file);
}

/// Makes the icon theme "Own" of \a icons, by their names, the current one.
void useIconTheme(const ThemeRepository &files, const QMap<QString, QColor> &icons)
{
    files.write(QStringLiteral("Own/index.theme"),
                "[Icon Theme]\nName=Own\nDirectories=scalable\n\n[scalable]\nSize=16\n"
                "Type=Scalable\nMinSize=8\nMaxSize=256\n");
    files.makeFolder(QStringLiteral("Own/scalable"));
    for (auto it = icons.cbegin(); it != icons.cend(); ++it) {
        const QString file = QStringLiteral("Own/scalable/%1.png").arg(it.key());
        QVERIFY(saveIcon(files.path(file), it.value()));
    }
    QIcon::setThemeSearchPaths({files.path()});
    QIcon::setThemeName(QStringLiteral("Own"));
}

const QColor referenceForeground(0xe5, 0xee, 0xf4);

} // namespace

/// Disabled colours and recoloured icons.
class ThemeColorHelperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void factorsFollowSideAndUse()
    {
        publishFactors({{lightForeground, 110},
                        {lightBackground, 120},
                        {darkForeground, 130},
                        {darkBackground, 140}});
        const QColor light = grey(200);
        const QColor dark = grey(80);
        QCOMPARE(ThemeColorHelper::disabled(light, true), light.darker(110));
        QCOMPARE(ThemeColorHelper::disabled(light, false), light.darker(120));
        QCOMPARE(ThemeColorHelper::disabled(dark, true), dark.lighter(130));
        QCOMPARE(ThemeColorHelper::disabled(dark, false), dark.lighter(140));
    }

    void thresholdBelongsToTheDarkSide()
    {
        publishFactors({{lightForeground, 200}, {darkForeground, 150}});
        QCOMPARE(TARN::Helpers::getPerceivedBrightness(grey(130)), 130);
        QCOMPARE(ThemeColorHelper::disabled(grey(130), true), grey(130).lighter(150));
        QCOMPARE(TARN::Helpers::getPerceivedBrightness(grey(131)), 131);
        QCOMPARE(ThemeColorHelper::disabled(grey(131), true), grey(131).darker(200));
    }

    void factorsAreReadOnce()
    {
        publishFactors({{darkForeground, 200}});
        QCOMPARE(ThemeColorHelper::disabled(grey(60), true), grey(60).lighter(200));
        publishFactors({{darkForeground, 300}});
        QCOMPARE(ThemeColorHelper::disabled(grey(60), true), grey(60).lighter(200));
    }

    void absentFactorsLeaveTheColor()
    {
        publishFactors({});
        QCOMPARE(ThemeColorHelper::disabled(grey(200), true), grey(200));
        QCOMPARE(ThemeColorHelper::disabled(grey(80), false), grey(80));
    }

    void alphaIsKept()
    {
        publishFactors({{darkBackground, 150}});
        QCOMPARE(ThemeColorHelper::disabled(QColor(40, 40, 40, 77), false).alpha(), 77);
    }

    void referenceForegroundIsReplaced()
    {
        const QIcon icon = squareIcon(referenceForeground);
        QCOMPARE(
            centre(ThemeColorHelper::getModifiedIconWithForegroundBrush(icon, QBrush(Qt::red))),
            QColor(Qt::red));
        const QIcon other = squareIcon(Qt::blue);
        QCOMPARE(
            centre(ThemeColorHelper::getModifiedIconWithForegroundBrush(other, QBrush(Qt::red))),
            QColor(Qt::blue));
    }

    void nullIconGivesNullIcon()
    {
        QVERIFY(ThemeColorHelper::getModifiedIconWithForegroundBrush(QIcon(), QBrush(Qt::red))
                    .isNull());
    }

    void tintOfADisabledBrushIsKept_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("disabled");
        QTest::newRow("suffix") << QStringLiteral("MainBrushDisabled") << true;
        QTest::newRow("derived variant") << QStringLiteral("DisabledMainBrush") << true;
        QTest::newRow("case") << QStringLiteral("MainBrushdisabled") << false;
        QTest::newRow("enabled") << QStringLiteral("MainBrush") << false;
        QTest::newRow("no variable") << QString() << false;
    }

    /// The disabled brush of a disabled icon is not weakened a second time.
    void tintOfADisabledBrushIsKept()
    {
        QFETCH(QString, name);
        QFETCH(bool, disabled);
        const QBrush tint(QColor(200, 30, 30));
        const QVariantMap brushes = name.isEmpty() ? QVariantMap() : QVariantMap{{name, tint}};
        publishVariables({{QStringLiteral("brushes"), brushes}});
        const QIcon icon = ThemeColorHelper::getModifiedIconWithForegroundBrush(
            squareIcon(referenceForeground), tint);
        const QColor painted = icon.pixmap(16, QIcon::Disabled).toImage().pixelColor(8, 8);
        QCOMPARE(painted == tint.color(), disabled);
    }

    void iconThemeVariantWins_data()
    {
        QTest::addColumn<QString>("brushName");
        QTest::addColumn<QString>("variant");
        QTest::newRow("enabled") << QStringLiteral("MainBrush")
                                 << QStringLiteral("action.close.MainBrush");
        QTest::newRow("disabled") << QStringLiteral("MainBrushDisabled")
                                  << QStringLiteral("action.close.MainDisabledBrush");
        QTest::newRow("no variable") << QString() << QStringLiteral("action.close.");
    }

    void iconThemeVariantWins()
    {
        QFETCH(QString, brushName);
        QFETCH(QString, variant);
        const QBrush tint(Qt::magenta);
        const QVariantMap brushes =
            brushName.isEmpty() ? QVariantMap() : QVariantMap{{brushName, tint}};
        publishVariables({{QStringLiteral("brushes"), brushes}});
        const ThemeRepository files;
        useIconTheme(files, {{QStringLiteral("action.close"), referenceForeground},
                             {variant, QColor(Qt::yellow)}});

        const QIcon icon = QIcon::fromTheme(QStringLiteral("action.close"));
        QCOMPARE(icon.name(), QStringLiteral("action.close"));
        const QIcon tinted = ThemeColorHelper::getModifiedIconWithForegroundBrush(icon, tint);
        QCOMPARE(centre(tinted), QColor(Qt::yellow));
        QCOMPARE(tinted.name(), variant);
    }

    /// The variant is found as soon as there is a folder that has one.
    void newFallbackFolderIsLookedAt()
    {
        const QBrush tint(Qt::magenta);
        publishVariables({{QStringLiteral("brushes"),
                           QVariantMap{{QStringLiteral("MainBrush"), QVariant(tint)}}}});
        const ThemeRepository files;
        useIconTheme(files, {{QStringLiteral("action.close"), referenceForeground}});
        const QIcon icon = QIcon::fromTheme(QStringLiteral("action.close"));
        QCOMPARE(centre(ThemeColorHelper::getModifiedIconWithForegroundBrush(icon, tint)),
                 QColor(Qt::magenta));

        files.makeFolder(QStringLiteral("fallback"));
        QVERIFY(saveIcon(files.path(QStringLiteral("fallback/action.close.MainBrush.png")),
                         Qt::yellow));
        QIcon::setFallbackSearchPaths({files.path(QStringLiteral("fallback"))});
        QCOMPARE(centre(ThemeColorHelper::getModifiedIconWithForegroundBrush(icon, tint)),
                 QColor(Qt::yellow));
    }

    /// More brushes than are kept, the nearest ones to each other among them.
    void everyBrushHasItsTint()
    {
        const QIcon icon = squareIcon(referenceForeground);
        for (QRgb rgb = 0; rgb < 0x480; ++rgb) {
            const QColor tint(rgb);
            QCOMPARE(centre(ThemeColorHelper::getModifiedIconWithForegroundBrush(icon, tint)),
                     tint);
        }
    }

    void everyIconHasItsTint()
    {
        for (QRgb rgb = 0; rgb < 0x480; ++rgb) {
            const QColor other(rgb);
            const QIcon tinted = ThemeColorHelper::getModifiedIconWithForegroundBrush(
                squareIcon(other), QBrush(Qt::red));
            QCOMPARE(centre(tinted), other);
        }
    }
};

QTEST_MAIN(ThemeColorHelperTest)
#include "ThemeColorHelperTest.moc"
