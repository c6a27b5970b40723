#include <resources/ThemeResources.h>

#include <QtTest/QtTest>

#include <support/Variables.h>

using TARN::ThemeResources;

/// Placeholders of stylesheets.
class StyleSheetSubstitutionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placeholdersAreFilled_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char *input, const char *expected) {
            QTest::newRow(name) << QString::fromUtf8(input) << QString::fromUtf8(expected);
        };
        row("one", "a @colors/MainColor@ b", "a #112233 b");
        row("two that touch", "@colors/MainColor@@colors/MainColor@", "#112233#112233");
        row("unknown name", "x @colors/Unknown@ y", "x @colors/Unknown@ y");
        row("unknown group", "@nosuch/MainColor@", "@nosuch/MainColor@");
        row("the end of an unknown one opens none", "@colors/Unknown@colors/MainColor@",
            "@colors/Unknown@colors/MainColor@");
        row("after an unknown one", "@colors/Unknown@ @colors/MainColor@",
            "@colors/Unknown@ #112233");
        row("translucent", "@colors/Veil@", "#80102030");
        row("a brush has no text", "[@brushes/SomeBrush@]", "[]");
        row("a group has no text", "[@colors@]", "[]");
        row("an opacity", "@opacities/Half@", "0.5");
        row("a corner radius", "@cornerRadius/BaseSize@px", "4px");
        row("the internal map is not looked into", "@factors/F@", "@factors/F@");
        row("slashes alone", "@/@ @//@", "@/@ @//@");
        row("beyond a value", "@colors/MainColor/more@", "#112233");
        row("a hyphen", "@colors/Main-Color@", "@colors/Main-Color@");
        row("a space", "@colors/Main Color@", "@colors/Main Color@");
        row("not ASCII", "@colors/Größe@", "@colors/Größe@");
        row("empty", "@@", "@@");
        row("an address", "me@example.org", "me@example.org");
        row("inserted text is not searched", "@colors/MainColor@@texts/Recursive@",
            "#112233@colors/MainColor@");
        row("inserted text opens none", "@texts/At@colors/MainColor@", "@colors/MainColor@");
        row("no text", "", "");
    }

    void placeholdersAreFilled()
    {
        QFETCH(QString, input);
        QFETCH(QString, expected);
        const auto text = [](const char *latin1) { return QString::fromLatin1(latin1); };
        QVariantMap colors = colorGroup({{text("MainColor"), text("#112233")}});
        colors.insert(text("Veil"), QColor(0x10, 0x20, 0x30, 0x80));
        colors.insert(QString::fromUtf8("Größe"), QColor(Qt::red));
        publishVariables({
            {text("colors"), colors},
            {text("brushes"), brushGroup({{text("SomeBrush"), text("#445566")}})},
            {text("opacities"), QVariantMap{{text("Half"), 0.5}}},
            {text("cornerRadius"), QVariantMap{{text("BaseSize"), 4}}},
            {text("texts"),
             QVariantMap{{text("Recursive"), text("@colors/MainColor@")}, {text("At"), text("@")}}},
        });
        publishFactors({{text("F"), 5}});
        QCOMPARE(ThemeResources::customizeStyleSheet(input), expected);
    }

    void withoutThemeNothingChanges()
    {
        const QString input = QStringLiteral("QWidget { color: @colors/MainColor@; }");
        QCOMPARE(ThemeResources::customizeStyleSheet(input), input);
    }

    void variablesAreReadAfresh()
    {
        const QString group = QStringLiteral("colors");
        const QString input = QStringLiteral("@colors/A@");
        for (const char *color : {"#010101", "#020202"}) {
            const QString value = QString::fromLatin1(color);
            publishVariables({{group, colorGroup({{QStringLiteral("A"), value}})}});
            QCOMPARE(ThemeResources::customizeStyleSheet(input), value);
        }
    }

    void compiledInStyleSheetsResolve()
    {
        const QDir folder(QStringLiteral(":/TARN/ThemeLibrary/stylesheets"));
        QCOMPARE(folder.entryList(QDir::Files, QDir::Name),
                 QStringList({QStringLiteral("ItemViews.qss"), QStringLiteral("QComboBox.qss")}));
        QStringList placeholders;
        const QRegularExpression pattern(QStringLiteral("@[\\w/]+@"));
        for (const QFileInfo &info : folder.entryInfoList()) {
            QFile file(info.filePath());
            QVERIFY(file.open(QIODevice::ReadOnly));
            auto matches = pattern.globalMatch(QString::fromUtf8(file.readAll()));
            while (matches.hasNext()) {
                placeholders.append(matches.next().captured());
            }
        }
        placeholders.removeDuplicates();
        placeholders.sort();
        QCOMPARE(placeholders, QStringList({QStringLiteral("@colors/BackgroundSubLevel1Color@"),
                                            QStringLiteral("@colors/BackgroundSubLevel2Color@"),
                                            QStringLiteral("@colors/BackgroundUpLevel1Color@"),
                                            QStringLiteral("@colors/MainColor@")}));
    }

    void compiledInRules_data()
    {
        QTest::addColumn<QString>("rules");
        QTest::newRow("QComboBox")
            << QStringLiteral("QComboBox QAbstractItemView { background: @UpLevel1@; "
                              "border: 1px solid @SubLevel1@; } "
                              "QComboBox QAbstractItemView { outline: none; } "
                              "QFontComboBox QAbstractItemView { "
                              "selection-background-color: @Main@; }");
        QTest::newRow("ItemViews")
            << QStringLiteral("QAbstractItemView::item { min-height: 18px; } "
                              "QHeaderView { background-color: @SubLevel2@; border: none; } "
                              "QHeaderView::section, QTableCornerButton::section { "
                              "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                              "stop: 0 @SubLevel1@, stop: 1 @SubLevel2@); padding: 1ex; "
                              "border-left: none; border-top: none; "
                              "border-right: 1px solid @UpLevel1@; "
                              "border-bottom: 1px solid @SubLevel2@; } "
                              "QHeaderView::section:disabled, QTableCornerButton::section:disabled "
                              "{ border-right: 1px solid @SubLevel2@; "
                              "border-bottom: 1px solid @SubLevel2@; } "
                              "QHeaderView::section:disabled { background-color: transparent; } "
                              "QTableCornerButton::section:disabled { "
                              "background-color: @SubLevel2@; }");
    }

    void compiledInRules()
    {
        QFETCH(QString, rules);
        QFile file(QStringLiteral(":/TARN/ThemeLibrary/stylesheets/%1.qss")
                       .arg(QString::fromLatin1(QTest::currentDataTag())));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QString actual = QString::fromUtf8(file.readAll());
        QVERIFY(actual.startsWith(QStringLiteral("/*")));
        const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/"),
                                         QRegularExpression::DotMatchesEverythingOption);
        actual.remove(comment);
        actual.replace(QRegularExpression(QStringLiteral("@colors/(?:Background)?(\\w+)Color@")),
                       QStringLiteral("@\\1@"));
        QCOMPARE(actual.simplified(), rules);
    }
};

QTEST_MAIN(StyleSheetSubstitutionTest)
#include "StyleSheetSubstitutionTest.moc"
