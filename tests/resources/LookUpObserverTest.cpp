#include <resources/LookUpObserver.h>
#include <resources/ThemeResources.h>

#include <QtTest/QtTest>

#include <support/Text.h>
#include <support/Variables.h>
#include <utility>

using TARN::ThemeResources;

namespace {

QStringList &told()
{
    static QStringList lines;
    return lines;
}

void tell(const QString &group, const QString &name)
{
    told().append(group + QLatin1Char(' ') + name);
}

QStringList takeTold()
{
    return std::exchange(told(), QStringList());
}

} // namespace

/// The observer of theme variables being looked up.
class LookUpObserverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { TARN::observeLookUps(tell); }
    void cleanup() { TARN::observeLookUps(nullptr); }

    void everyGetterIsObserved()
    {
        ThemeResources::getColor(text("A"));
        ThemeResources::getBrush(text("B"));
        ThemeResources::getFont(text("C"));
        ThemeResources::getOpacity(text("D"));
        ThemeResources::getCornerRadius(text("E"));
        ThemeResources::getDisabledFactor(text("F"));
        QCOMPARE(takeTold(),
                 QStringList({text("colors A"), text("brushes B"), text("fonts C"),
                              text("opacities D"), text("cornerRadius E"), text("factors F")}));
    }

    /// A name is told each time, whether or not the group is kept and knows it.
    void repeatedLookUpsAreObserved()
    {
        publishVariables({{text("colors"), colorGroup({{text("Known"), text("#112233")}})}});
        ThemeResources::getColor(text("Known"));
        ThemeResources::getColor(text("Known"));
        QCOMPARE(takeTold(), QStringList({text("colors Known"), text("colors Known")}));
    }

    void pathsAreObserved()
    {
        ThemeResources::getThemeVar(text("colors/A"));
        ThemeResources::getThemeVar(text("colors"));
        ThemeResources::getThemeVar(text("texts/B/C"));
        QCOMPARE(takeTold(), QStringList({text("colors A"), text("colors "), text("texts B/C")}));
    }

    void placeholdersAreObserved()
    {
        ThemeResources::customizeStyleSheet(text("a { b: @colors/A@; c: @cornerRadius/B@px; }"));
        QCOMPARE(takeTold(), QStringList({text("colors A"), text("cornerRadius B")}));
    }

    void theFormerObserverIsReturned()
    {
        QVERIFY(TARN::observeLookUps(nullptr) == tell);
        ThemeResources::getColor(text("A"));
        ThemeResources::getThemeVar(text("colors/A"));
        QCOMPARE(takeTold(), QStringList());
        QVERIFY(!TARN::observeLookUps(tell));
        ThemeResources::getColor(text("A"));
        QCOMPARE(takeTold(), QStringList(text("colors A")));
    }
};

QTEST_MAIN(LookUpObserverTest)
#include "LookUpObserverTest.moc"
