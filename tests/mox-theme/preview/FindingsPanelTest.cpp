#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListView>

#include <preview/FindingDelegate.h>
#include <preview/FindingsPanel.h>

using namespace TARN::ThemeTool;

namespace {

Finding finding(const char *rule, Severity severity, const char *file, int line)
{
    Finding result;
    result.rule = QString::fromLatin1(rule);
    result.severity = severity;
    result.file = QString::fromLatin1(file);
    result.line = line;
    result.text = QStringLiteral("The sentence of ") + result.rule;
    result.suggestion = QStringLiteral("Mend ") + result.rule;
    return result;
}

QVector<Finding> someFindings()
{
    return {finding("low-contrast", Severity::Error, "/themes/Probe/config.xml", 12),
            finding("unused-entry", Severity::Warning, "/themes/Probe/config.xml", 30),
            finding("missing-file", Severity::Error, "/themes/Probe/Images/x.svg", 0)};
}

QStringList shownTexts(const QWidget &panel)
{
    QStringList texts;
    for (const auto *label : panel.findChildren<QLabel *>()) {
        if (label->isVisible()) {
            texts.append(label->text());
        }
    }
    return texts;
}

} // namespace

/// What stands beside the window of a theme that is being worked on.
class FindingsPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void noFindingsAreSaidToBeNone();
    void findingsAreListed();
    void formerFindingsGo();
    void severitiesLookDifferent();
    void longSentencesAreBroken();
    void nothingIsPaintedBesideAnItem();
    void theBarSaysWhatIsWrong();

private:
    [[nodiscard]] const QListView &list() const { return *m_panel->findChild<QListView *>(); }
    [[nodiscard]] QModelIndex item(int row) const { return list().model()->index(row, 0); }

    std::unique_ptr<FindingsPanel> m_panel;
};

void FindingsPanelTest::init()
{
    m_panel = std::make_unique<FindingsPanel>();
    m_panel->resize(360, 600);
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
}

void FindingsPanelTest::noFindingsAreSaidToBeNone()
{
    QCOMPARE(shownTexts(*m_panel), QStringList(QStringLiteral("No findings")));
    QVERIFY(!list().isVisible());
}

void FindingsPanelTest::findingsAreListed()
{
    m_panel->setFindings(someFindings(), QStringLiteral("/themes/Probe"));
    QCOMPARE(shownTexts(*m_panel), QStringList(QStringLiteral("2 errors, 1 warning")));
    QVERIFY(list().isVisible());
    QCOMPARE(list().model()->rowCount(), 3);
    const QStringList places{QStringLiteral("config.xml:12"), QStringLiteral("config.xml:30"),
                             QStringLiteral("Images/x.svg")};
    for (int row = 0; row < 3; ++row) {
        const Finding expected = someFindings().at(row);
        QCOMPARE(item(row).data(Qt::DisplayRole).toString(), expected.text);
        QCOMPARE(item(row).data(RuleRole).toString(), expected.rule);
        QCOMPARE(item(row).data(PlaceRole).toString(), places.at(row));
        QCOMPARE(item(row).data(SuggestionRole).toString(), expected.suggestion);
        QVERIFY(!item(row).data(Qt::DecorationRole).value<QIcon>().isNull());
    }
}

void FindingsPanelTest::formerFindingsGo()
{
    m_panel->setFindings(someFindings(), QStringLiteral("/themes/Probe"));
    m_panel->setFindings({someFindings().at(1)}, QStringLiteral("/themes/Probe"));
    QCOMPARE(list().model()->rowCount(), 1);
    QCOMPARE(shownTexts(*m_panel), QStringList(QStringLiteral("1 warning")));
    m_panel->setFindings({}, QStringLiteral("/themes/Probe"));
    QCOMPARE(shownTexts(*m_panel), QStringList(QStringLiteral("No findings")));
    QVERIFY(!list().isVisible());
}

void FindingsPanelTest::severitiesLookDifferent()
{
    m_panel->setFindings(someFindings(), QStringLiteral("/themes/Probe"));
    QVector<QImage> icons;
    for (int row = 0; row < 3; ++row) {
        icons.append(item(row).data(Qt::DecorationRole).value<QIcon>().pixmap(16, 16).toImage());
    }
    QVERIFY(icons.at(0) != icons.at(1));
    QVERIFY(icons.at(0) == icons.at(2));
}

void FindingsPanelTest::longSentencesAreBroken()
{
    QVector<Finding> findings{someFindings().first(), someFindings().first()};
    findings[1].text = findings[1].text.repeated(8);
    m_panel->setFindings(findings, QStringLiteral("/themes/Probe"));
    QTRY_VERIFY(list().visualRect(item(1)).height() > 2 * list().visualRect(item(0)).height());
    QCOMPARE(list().visualRect(item(1)).width(), list().viewport()->width());
    // All of them have to be seen in a narrower panel, too.
    const int height = list().visualRect(item(1)).height();
    m_panel->resize(240, 600);
    QTRY_VERIFY(list().visualRect(item(1)).height() > height);
    QVERIFY(list().visualRect(item(1)).width() <= 240);
}

void FindingsPanelTest::nothingIsPaintedBesideAnItem()
{
    QVector<Finding> findings{someFindings().first()};
    findings[0].file = QStringLiteral("/themes/Probe/") + QString(200, u'm');
    findings[0].text = QString(300, u'm');
    m_panel->setFindings(findings, QStringLiteral("/themes/Probe"));
    QTRY_VERIFY(list().visualRect(item(0)).isValid());

    QStyleOptionViewItem option;
    option.initFrom(&list());
    option.rect = QRect(100, 100, 300, 0);
    option.rect.setHeight(list().itemDelegate()->sizeHint(option, item(0)).height());
    const QRect rect = option.rect;
    QImage image(500, rect.height() + 200, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    list().itemDelegate()->paint(&painter, option, item(0));
    painter.end();
    bool painted = false;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool changed = image.pixelColor(x, y) != Qt::magenta;
            painted = painted || changed;
            QVERIFY2(!changed || rect.contains(x, y), qPrintable(QString::number(x)));
        }
    }
    QVERIFY(painted);
}

void FindingsPanelTest::theBarSaysWhatIsWrong()
{
    m_panel->setProblem(QStringLiteral("config.xml is missing"));
    QVERIFY(shownTexts(*m_panel).contains(QStringLiteral("config.xml is missing")));
    m_panel->setProblem(QString());
    QCOMPARE(shownTexts(*m_panel), QStringList(QStringLiteral("No findings")));
}

QTEST_MAIN(FindingsPanelTest)
#include "FindingsPanelTest.moc"
