#include <resources/ThemeResources.h>

#include <QtTest/QtTest>

#include <support/Text.h>
#include <support/Variables.h>

using TARN::ThemeResources;

/// Look-up of theme variables by path, by name and by value.
class ThemeResourcesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void propertiesAndGroupsAreNamed()
    {
        QCOMPARE(ThemeResources::getThemeVariablePropertyName(), "theme_var");
        QCOMPARE(ThemeResources::getInternalThemeVariablePropertyName(), "theme_var_internal");
        QCOMPARE(ThemeResources::getColorsVarPrefix(), text("colors"));
        QCOMPARE(ThemeResources::getInternalColorsVarPrefix(), text("internalColors"));
        QCOMPARE(ThemeResources::getBrushesVarPrefix(), text("brushes"));
        QCOMPARE(ThemeResources::getInternalBrushesVarPrefix(), text("internalBrushes"));
        QCOMPARE(ThemeResources::getFontsVarPrefix(), text("fonts"));
        QCOMPARE(ThemeResources::getOpacitiesVarPrefix(), text("opacities"));
        QCOMPARE(ThemeResources::getCornerRadiusVarPrefix(), text("cornerRadius"));
        QCOMPARE(ThemeResources::getDisabledFactorsVarPrefix(), text("factors"));
        QCOMPARE(ThemeResources::iconsPrefix(), text("icons"));
        QCOMPARE(ThemeResources::cursorsPrefix(), text("cursors"));
        QCOMPARE(ThemeResources::themeResourcesPrefix(), text("resources"));
        QCOMPARE(&ThemeResources::getColorsVarPrefix(), &ThemeResources::getColorsVarPrefix());
    }

    void pathsAreResolved_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QVariant>("expected");
        const QVariant fallback(text("fallback"));
        QTest::newRow("a variable") << text("colors/MainColor") << QVariant(QColor(Qt::blue));
        QTest::newRow("beyond a value")
            << text("colors/MainColor/anything/else") << QVariant(QColor(Qt::blue));
        QTest::newRow("nothing") << QString() << fallback;
        QTest::newRow("unknown variable") << text("colors/NoSuchColor") << fallback;
        QTest::newRow("unknown group") << text("nosuch/MainColor") << fallback;
        QTest::newRow("empty first part") << text("/colors/MainColor") << fallback;
        QTest::newRow("empty last part") << text("colors/") << fallback;
        QTest::newRow("nested deeper") << text("deep/inner/leaf") << QVariant(3);
        QTest::newRow("the internal map is not looked into") << text("factors/F") << fallback;
    }

    void pathsAreResolved()
    {
        QFETCH(QString, path);
        QFETCH(QVariant, expected);
        publishVariables({
            {text("colors"), colorGroup({{text("MainColor"), text("#0000ff")}})},
            {text("deep"), QVariantMap{{text("inner"), QVariantMap{{text("leaf"), 3}}}}},
        });
        publishFactors({{text("F"), 5}});
        QCOMPARE(ThemeResources::getThemeVar(path, text("fallback")), expected);
    }

    void groupPathGivesTheGroup()
    {
        const QVariantMap colors = colorGroup({{text("A"), text("#010203")}});
        publishVariables({{text("colors"), colors}});
        QCOMPARE(ThemeResources::getThemeVar(text("colors"), 1).toMap(), colors);
        QCOMPARE(ThemeResources::getThemeVar(text("colors/Missing"), QColor(Qt::red)),
                 QVariant(QColor(Qt::red)));
    }

    void pathsAreReadAfresh()
    {
        publishVariables({{text("colors"), colorGroup({{text("A"), text("#010203")}})}});
        QCOMPARE(ThemeResources::getThemeVar(text("colors/A"), {}), QVariant(QColor(1, 2, 3)));
        publishVariables({{text("colors"), colorGroup({{text("A"), text("#040506")}})}});
        QCOMPARE(ThemeResources::getThemeVar(text("colors/A"), {}), QVariant(QColor(4, 5, 6)));
    }

    void typedGettersFindTheirGroup()
    {
        const QString x = text("X");
        const QFont font(text("Sans"), 31);
        publishVariables({
            {text("colors"), QVariantMap{{x, QColor(Qt::green)}}},
            {text("brushes"), QVariantMap{{x, QBrush(Qt::red, Qt::Dense4Pattern)}}},
            {text("fonts"), QVariantMap{{x, font}}},
            {text("opacities"), QVariantMap{{x, 0.5}}},
            {text("cornerRadius"), QVariantMap{{x, 7}}},
        });
        publishFactors({{x, 130}});
        QCOMPARE(ThemeResources::getColor(x), QColor(Qt::green));
        QCOMPARE(ThemeResources::getBrush(x), QBrush(Qt::red, Qt::Dense4Pattern));
        QCOMPARE(ThemeResources::getFont(x), font);
        QCOMPARE(ThemeResources::getOpacity(x), 0.5);
        QCOMPARE(ThemeResources::getCornerRadius(x), 7.0);
        QCOMPARE(ThemeResources::getDisabledFactor(x), 130);
    }

    void absentNamesGiveDefaults()
    {
        const QString x = text("X");
        QVERIFY(!ThemeResources::getColor(x).isValid());
        QCOMPARE(ThemeResources::getBrush(x).style(), Qt::NoBrush);
        QCOMPARE(ThemeResources::getFont(x), QFont());
        QCOMPARE(ThemeResources::getOpacity(x), 0.0);
        QCOMPARE(ThemeResources::getCornerRadius(x), 0.0);
        QCOMPARE(ThemeResources::getDisabledFactor(x), 0);
    }

    void unconvertibleValuesGiveDefaults()
    {
        const QString x = text("X");
        publishVariables({{text("colors"), QVariantMap{{x, QVariantList{1}}}},
                          {text("opacities"), QVariantMap{{x, QColor(Qt::red)}}}});
        QVERIFY(!ThemeResources::getColor(x).isValid());
        QCOMPARE(ThemeResources::getOpacity(x), 0.0);
    }

    void defaultFontFollowsTheApplication()
    {
        QCOMPARE(ThemeResources::getFont(text("none")), QFont());
        QApplication::setFont(QFont(text("Serif"), 33));
        QCOMPARE(ThemeResources::getFont(text("none")).pointSize(), 33);
    }

    void firstLookUpDecidesForTheProcess()
    {
        const QString main = text("MainColor");
        QVERIFY(!ThemeResources::getColor(main).isValid());
        QCOMPARE(ThemeResources::getDisabledFactor(main), 0);
        publishVariables({{text("colors"), colorGroup({{main, text("#ff0000")}})},
                          {text("brushes"), brushGroup({{main, text("#00ff00")}})}});
        publishFactors({{main, 50}});
        QVERIFY(!ThemeResources::getColor(main).isValid());
        QCOMPARE(ThemeResources::getDisabledFactor(main), 0);

        // Each getter keeps its own group: one that was not asked yet sees the theme.
        QCOMPARE(ThemeResources::getBrush(main), QBrush(QColor(0, 255, 0)));
        publishVariables({});
        QCOMPARE(ThemeResources::getBrush(main), QBrush(QColor(0, 255, 0)));
    }

    /// Who asks for ever new names does not fill the memory.
    void unknownNamesAreNotKept()
    {
        publishVariables(
            {{QStringLiteral("colors"), QVariantMap{{QStringLiteral("Known"), QColor(Qt::red)}}}});
        QString name = QStringLiteral("Un%1").arg(QStringLiteral("known"));
        QVERIFY(name.isDetached());
        QVERIFY(!ThemeResources::getColor(name).isValid());
        QVERIFY(name.isDetached());
        QCOMPARE(ThemeResources::getColor(QStringLiteral("Known")), QColor(Qt::red));
    }

    void everyGetterKeepsItsGroup()
    {
        const QString x = text("X");
        const auto look = [&x] {
            return QVariantList{
                ThemeResources::getColor(x),        ThemeResources::getBrush(x),
                ThemeResources::getFont(x),         ThemeResources::getOpacity(x),
                ThemeResources::getCornerRadius(x), ThemeResources::getDisabledFactor(x)};
        };
        publishVariables({
            {text("colors"), QVariantMap{{x, QColor(Qt::green)}}},
            {text("brushes"), QVariantMap{{x, QBrush(Qt::red)}}},
            {text("fonts"), QVariantMap{{x, QFont(text("Sans"), 31)}}},
            {text("opacities"), QVariantMap{{x, 0.5}}},
            {text("cornerRadius"), QVariantMap{{x, 7}}},
        });
        publishFactors({{x, 130}});
        const QVariantList first = look();
        publishVariables({});
        publishFactors({});
        QCOMPARE(look(), first);
        QCOMPARE(first.last(), QVariant(130));
    }

    void colorNamesAreSearched()
    {
        publishVariables({{text("colors"), colorGroup({{text("MainColor"), text("#111111")},
                                                       {text("DisabledMainColor"), text("#222222")},
                                                       {text("NotDisabled"), text("#333333")},
                                                       {text("DisabledA"), text("#444444")}})}});
        QCOMPARE(ThemeResources::getColors(QRegularExpression(text("^Disabled"))),
                 QStringList({text("DisabledA"), text("DisabledMainColor")}));
        QCOMPARE(ThemeResources::getColors(QRegularExpression(text("disabled"))), QStringList());
        QCOMPARE(ThemeResources::getColors(QRegularExpression()).size(), 4);
    }

    void keysOfValues_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none") << QStringList() << QString();
        QTest::newRow("first in order")
            << QStringList{text("Beta"), text("Alpha")} << text("Alpha");
        QTest::newRow("Main is preferred")
            << QStringList{text("AccentColor"), text("MainColor")} << text("MainColor");
        QTest::newRow("Foreground is preferred")
            << QStringList{text("Accent"), text("ForegroundColor")} << text("ForegroundColor");
        QTest::newRow("both rank equally")
            << QStringList{text("MainA"), text("ForegroundB"), text("A")} << text("ForegroundB");
        QTest::newRow("the prefixes are case-sensitive")
            << QStringList{text("mainColor"), text("Zeta")} << text("Zeta");
        QTest::newRow("a prefix stands in front")
            << QStringList{text("DisabledMainColor"), text("Accent")} << text("Accent");
    }

    void keysOfValues()
    {
        QFETCH(QStringList, names);
        QFETCH(QString, expected);
        QMap<QString, QString> colors{{text("Aaa"), text("#998877")}};
        for (const QString &name : names) {
            colors.insert(name, text("#123456"));
        }
        publishVariables(
            {{text("colors"), colorGroup(colors)}, {text("brushes"), brushGroup(colors)}});
        const QColor color(0x12, 0x34, 0x56);
        QCOMPARE(ThemeResources::getColorKey(color), expected);
        QCOMPARE(ThemeResources::getBrushKey(QBrush(color)), expected);
        QCOMPARE(ThemeResources::getColorOrBrushKey(color, colorGroup(colors)), expected);
    }

    void keysAreReadAfresh()
    {
        const QColor color(1, 2, 3);
        publishVariables({{text("colors"), colorGroup({{text("A"), text("#010203")}})}});
        QCOMPARE(ThemeResources::getColorKey(color), text("A"));
        publishVariables({{text("colors"), colorGroup({{text("B"), text("#010203")}})}});
        QCOMPARE(ThemeResources::getColorKey(color), text("B"));

        QVariantMap variables = qApp->property("theme_var").toMap();
        variables.insert(text("colors"), colorGroup({{text("C"), text("#010203")}}));
        publishVariables(variables);
        QCOMPARE(ThemeResources::getColorKey(color), text("C"));
        publishVariables({});
        QCOMPARE(ThemeResources::getColorKey(color), QString());
    }

    void keysOfBrushesDistinguishEverything()
    {
        QLinearGradient gradient(0, 0, 0, 1);
        gradient.setColorAt(0, Qt::red);
        QLinearGradient other = gradient;
        other.setColorAt(1, Qt::blue);
        publishVariables(
            {{text("brushes"), QVariantMap{{text("Dense"), QBrush(Qt::red, Qt::Dense4Pattern)},
                                           {text("Gradient"), QBrush(gradient)},
                                           {text("None"), QBrush()},
                                           {text("Solid"), QBrush(Qt::red)},
                                           {text("Veil"), QBrush(QColor(255, 0, 0, 128))}}}});
        QCOMPARE(ThemeResources::getBrushKey(QBrush(Qt::red)), text("Solid"));
        QCOMPARE(ThemeResources::getBrushKey(QBrush(Qt::red, Qt::Dense4Pattern)), text("Dense"));
        QCOMPARE(ThemeResources::getBrushKey(QBrush(QColor(255, 0, 0, 128))), text("Veil"));
        QCOMPARE(ThemeResources::getBrushKey(QBrush(gradient)), text("Gradient"));
        QCOMPARE(ThemeResources::getBrushKey(QBrush(other)), QString());
        QCOMPARE(ThemeResources::getBrushKey(QBrush()), text("None"));
    }

    /// The quick look-up must agree with the plain one whatever a variable map holds.
    void keysAgreeWithPlainLookUp()
    {
        QVariantMap colors{{text("Float"), QColor::fromRgbF(0.5, 0.25, 0.75)},
                           {text("Hsv"), QColor::fromHsv(120, 255, 255)},
                           {text("Text"), text("#00ff00")},
                           {text("Number"), 3}};
        QColor extended;
        extended.setNamedColor(text("#ff8040"));
        colors.insert(text("Extended"), extended.convertTo(QColor::ExtendedRgb));
        colors.insert(text("Plain"), QColor(text("#ff8040")));
        const QList<QColor> asked{QColor(Qt::green),
                                  QColor::fromHsv(120, 255, 255),
                                  extended,
                                  extended.convertTo(QColor::ExtendedRgb),
                                  QColor::fromRgbF(0.5, 0.25, 0.75),
                                  QColor()};
        for (const QString &removed : {text("nothing"), text("Extended"), text("Text")}) {
            colors.remove(removed);
            publishVariables({{text("colors"), colors}});
            for (const QColor &color : asked) {
                QCOMPARE(ThemeResources::getColorKey(color),
                         ThemeResources::getColorOrBrushKey(color, colors));
            }
        }
    }
};

QTEST_MAIN(ThemeResourcesTest)
#include "ThemeResourcesTest.moc"
