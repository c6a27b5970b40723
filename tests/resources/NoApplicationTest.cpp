#include <resources/ThemeColorHelper.h>
#include <resources/ThemeResources.h>

#include <QtCore/QCoreApplication>
#include <QtTest/QtTest>

using TARN::ThemeColorHelper;
using TARN::ThemeResources;

/// What look-ups give before there is an application object.
class NoApplicationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typedGettersGiveTheirDefaults()
    {
        const QString name = QStringLiteral("Anything");
        QVERIFY(!ThemeResources::getColor(name).isValid());
        QCOMPARE(ThemeResources::getBrush(name), QBrush());
        QCOMPARE(ThemeResources::getFont(name), QFont());
        QCOMPARE(ThemeResources::getOpacity(name), 1.0);
        QCOMPARE(ThemeResources::getCornerRadius(name), 0.0);
        QCOMPARE(ThemeResources::getDisabledFactor(name), 100);
    }

    void defaultsAreNotKept()
    {
        const QString name = QStringLiteral("X");
        QCOMPARE(ThemeResources::getDisabledFactor(name), 100);
        QCOMPARE(ThemeResources::getOpacity(name), 1.0);

        int argc = 0;
        QCoreApplication app(argc, nullptr);
        app.setProperty("theme_var_internal",
                        QVariantMap{{QStringLiteral("factors"), QVariantMap{{name, 42}}}});
        app.setProperty("theme_var",
                        QVariantMap{{QStringLiteral("opacities"), QVariantMap{{name, 0.25}}}});
        QCOMPARE(ThemeResources::getDisabledFactor(name), 42);
        QCOMPARE(ThemeResources::getOpacity(name), 0.25);
    }

    void untypedLookUpsFindNothing()
    {
        QCOMPARE(ThemeResources::getThemeVar(QStringLiteral("colors/X"), 7), QVariant(7));
        QVERIFY(ThemeResources::getColors(QRegularExpression(QStringLiteral("."))).isEmpty());
        QCOMPARE(ThemeResources::getColorKey(Qt::red), QString());
        QCOMPARE(ThemeResources::getBrushKey(QBrush(Qt::red)), QString());
        const QString styleSheet = QStringLiteral("a @colors/X@ b");
        QCOMPARE(ThemeResources::customizeStyleSheet(styleSheet), styleSheet);
    }

    void factorsReadWithoutApplicationStay()
    {
        const QColor color(100, 100, 100);
        QCOMPARE(ThemeColorHelper::disabled(color, true), color);

        int argc = 0;
        QCoreApplication app(argc, nullptr);
        const QVariantMap factors{{QStringLiteral("DarkForegroundDisableFactor"), 200}};
        app.setProperty("theme_var_internal", QVariantMap{{QStringLiteral("factors"), factors}});
        QCOMPARE(ThemeColorHelper::disabled(color, true), color);
    }
};

QTEST_APPLESS_MAIN(NoApplicationTest)
#include "NoApplicationTest.moc"
