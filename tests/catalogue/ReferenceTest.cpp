#include <catalogue/Catalogue.h>

#include <QtCore/QFile>
#include <QtTest/QtTest>

#include <Reference.h>
#include <support/Text.h>

namespace {

QString contentsOf(const char *path)
{
    QFile file(text(MOX_CHECKOUT "/") + text(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString reference()
{
    return TARN::Reference::makeReference(contentsOf("tools/reference/introduction.md"));
}

} // namespace

/// The theme author's reference.
class ReferenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Fails when the catalogue has changed: mox-theme-reference writes the file anew.
    void theFileIsUpToDate()
    {
        const QStringList expected = reference().split(QLatin1Char('\n'));
        const QStringList found = contentsOf("docs/theme-variables.md").split(QLatin1Char('\n'));
        for (int line = 0; line < qMin(expected.size(), found.size()); ++line) {
            QCOMPARE(found.at(line), expected.at(line));
        }
        QCOMPARE(found.size(), expected.size());
    }

    void nothingIsLeftToFillIn() { QVERIFY(!reference().contains(QLatin1Char('%'))); }

    /// Those whose names are composed are told in words.
    void namedVariablesAreListed()
    {
        const QString text = reference();
        for (const auto &[group, name] :
             {std::pair("brushes", "MainBrush"), std::pair("colors", "Series11Color"),
              std::pair("cornerRadius", "LargeSize"),
              std::pair("factors", "DarkBackgroundDisableFactor")}) {
            const TARN::Variable *variable = TARN::Catalogue::find(::text(group), ::text(name));
            QVERIFY(variable);
            QVERIFY2(text.contains(QLatin1Char('`') + variable->name + QLatin1Char('`')), name);
            QVERIFY2(text.contains(variable->meaning), name);
        }
        QVERIFY(!text.contains(::text("ButtonDangerCheckedHoverBorderBrush")));
    }
};

QTEST_GUILESS_MAIN(ReferenceTest)
#include "ReferenceTest.moc"
