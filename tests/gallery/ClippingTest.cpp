#include "ShownTexts.h"

#include <theme/BaseTheme.h>

#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtGui/QScreen>
#include <QtGui/QStandardItemModel>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>

#include <memory>
#include <pages/PageTable.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using namespace TARN::Gallery;

namespace {

// What the gallery's window leaves to a page.
constexpr QSize RoomForAPage(1310, 790);

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Adds the shipped theme with fonts around \a points to \a repository. Returns its directory.
QString addThemeWithFont(const ThemeRepository &repository, int points)
{
    const QString source = text(MOX_THEMES "/Dark/");
    const QString name = text("Font%1").arg(points);
    for (const char *file : {"theme.xml", "qpaletteMapping.xml"}) {
        repository.write(name + u'/' + text(file), contentOf(source + text(file)));
    }
    QByteArray configuration = contentOf(source + text("config.xml"));
    const auto setSize = [&configuration](const QByteArray &element, int from, int to) {
        configuration.replace('<' + element + '>' + QByteArray::number(from),
                              '<' + element + '>' + QByteArray::number(to));
    };
    // In the shipped relations.
    setSize("SmallSize", 8, points - 1);
    setSize("BaseSize", 9, points);
    setSize("MediumSize", 10, points + 1);
    setSize("LargeSize", 12, points + 3);
    repository.write(name + text("/config.xml"), configuration);
    QFile::link(source + text("Fonts"), repository.path(name + text("/Fonts")));
    return repository.path(name);
}

QSet<QByteArray> everyKind()
{
    return {"label",        "wrapped label", "rich label",   "push button",  "tool button",
            "command link", "check box",     "radio button", "tab",          "menu item",
            "shortcut",     "menu bar item", "group box",    "tool box tab", "header",
            "spin box",     "combo box"};
}

/// Lays a page out in \a window, which it makes larger than the gallery's if it has to be.
void layOut(QWidget &page, QWidget &window)
{
    page.setParent(&window);
    page.ensurePolished();
    QSize size = page.sizeHint().expandedTo(RoomForAPage);
    if (page.hasHeightForWidth()) {
        size.rheight() = qMax(size.height(), page.heightForWidth(size.width()));
    }
    window.resize(size);
    page.resize(size);
    page.show();
    // Layouts of layouts take a few rounds.
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// Tells whether a text stands in a message box that needs more than the screen, which it does not
/// grow beyond. The offscreen platform's is 400 pixels wide at a factor of two.
bool isLimitedByScreen(const ShownText &shown)
{
    const QWidget *widget = shown.widget;
    while (widget && !qobject_cast<const QMessageBox *>(widget)) {
        widget = widget->parentWidget();
    }
    return widget &&
           widget->layout()->totalMinimumSize().width() > widget->screen()->availableSize().width();
}

using WidgetMaker = QWidget *(*)();

const QString longText = text("A text that takes its room");

QWidget *halved(QWidget *widget)
{
    widget->ensurePolished();
    widget->setFixedSize(widget->sizeHint().width() / 2, widget->sizeHint().height());
    return widget;
}

template <typename Widget>
QWidget *squeezed()
{
    return halved(new Widget(longText));
}

QWidget *wrappedLabel()
{
    auto *label = new QLabel(longText);
    label->setWordWrap(true);
    label->setFixedSize(40, label->fontMetrics().height());
    return label;
}

QWidget *richLabel()
{
    return halved(new QLabel(QString(text("<b>") + longText + text("</b>"))));
}

QWidget *groupBox()
{
    auto *box = new QGroupBox(longText);
    box->setFixedSize(60, 40);
    return box;
}

QWidget *toolButton()
{
    auto *button = new QToolButton;
    button->setText(longText);
    return halved(button);
}

QWidget *tabBar()
{
    struct NarrowTabs : QTabBar
    {
        QSize tabSizeHint(int /*index*/) const override { return {60, 30}; }
    };
    auto *bar = new NarrowTabs;
    bar->addTab(longText);
    return bar;
}

QWidget *header()
{
    auto *view = new QHeaderView(Qt::Horizontal);
    auto *model = new QStandardItemModel(view);
    model->setHorizontalHeaderLabels({longText});
    view->setModel(model);
    view->resizeSection(0, 60);
    return view;
}

QWidget *spinBox()
{
    auto *box = new QSpinBox;
    box->setSuffix(longText);
    return halved(box);
}

QWidget *comboBox()
{
    auto *box = new QComboBox;
    box->addItem(longText);
    return halved(box);
}

} // namespace

Q_DECLARE_METATYPE(WidgetMaker)

/// No text of a gallery page is cut off, at the scale factor that the environment sets.
class ClippingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qApp->setProperty("appLiveThemeSwitch", true); }
    void squeezedTextsAreFound_data();
    void squeezedTextsAreFound();
    void textsHaveTheirRoom_data();
    void textsHaveTheirRoom();

private:
    ThemeRepository m_repository;
};

void ClippingTest::squeezedTextsAreFound_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<WidgetMaker>("create");
    QTest::newRow("label") << QByteArray("label") << WidgetMaker(squeezed<QLabel>);
    QTest::newRow("wrapped label") << QByteArray("wrapped label") << WidgetMaker(wrappedLabel);
    QTest::newRow("rich label") << QByteArray("rich label") << WidgetMaker(richLabel);
    QTest::newRow("push button") << QByteArray("push button") << WidgetMaker(squeezed<QPushButton>);
    QTest::newRow("check box") << QByteArray("check box") << WidgetMaker(squeezed<QCheckBox>);
    QTest::newRow("radio button") << QByteArray("radio button")
                                  << WidgetMaker(squeezed<QRadioButton>);
    QTest::newRow("command link") << QByteArray("command link")
                                  << WidgetMaker(squeezed<QCommandLinkButton>);
    QTest::newRow("group box") << QByteArray("group box") << WidgetMaker(groupBox);
    QTest::newRow("tool button") << QByteArray("tool button") << WidgetMaker(toolButton);
    QTest::newRow("tab") << QByteArray("tab") << WidgetMaker(tabBar);
    QTest::newRow("header") << QByteArray("header") << WidgetMaker(header);
    QTest::newRow("spin box") << QByteArray("spin box") << WidgetMaker(spinBox);
    QTest::newRow("combo box") << QByteArray("combo box") << WidgetMaker(comboBox);
}

/// What fits in the pages would be found if it did not.
void ClippingTest::squeezedTextsAreFound()
{
    QFETCH(const QByteArray, kind);
    QFETCH(const WidgetMaker, create);
    TARN::BaseTheme(addThemeWithFont(m_repository, 9)).customize(qApp);
    const std::unique_ptr<QWidget> widget(create());
    widget->setAttribute(Qt::WA_DontShowOnScreen);
    widget->show();
    const QVector<ShownText> texts = shownTexts(*widget);
    QVERIFY(!texts.isEmpty());
    for (const ShownText &shown : texts) {
        QCOMPARE(QByteArray(shown.kind), kind);
        QVERIFY2(shown.isClipped(), qPrintable(shown.description()));
    }
}

void ClippingTest::textsHaveTheirRoom_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const int points : {7, 9, 12, 16, 24}) {
        QTest::addRow("%d points", points) << points << Qt::LeftToRight;
        QTest::addRow("%d points, right to left", points) << points << Qt::RightToLeft;
    }
}

void ClippingTest::textsHaveTheirRoom()
{
    QFETCH(const int, points);
    QFETCH(const Qt::LayoutDirection, direction);
    TARN::BaseTheme(addThemeWithFont(m_repository, points)).customize(qApp);
    QCOMPARE(QApplication::font().pointSize(), points);
    QApplication::setLayoutDirection(direction);

    QWidget window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    QStringList clipped;
    QSet<QByteArray> kinds;
    for (const Page &page : pages()) {
        const std::unique_ptr<QWidget> contents(page.create());
        layOut(*contents, window);
        const QVector<ShownText> texts = shownTexts(*contents);
        for (const ShownText &shown : texts) {
            kinds.insert(shown.kind);
            if (shown.isClipped() && !isLimitedByScreen(shown)) {
                clipped.append(page.id + text(": ") + shown.description());
            }
        }
    }
    clipped.removeDuplicates();
    for (const QString &description : qAsConst(clipped)) {
        qWarning("%s", qPrintable(description));
    }
    QVERIFY(clipped.isEmpty());
    QCOMPARE(kinds, everyKind());
}

QTEST_MAIN(ClippingTest)
#include "ClippingTest.moc"
