#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtGui/QFontDatabase>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolBox>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include <support/Text.h>

using TARN::BaseStyle;
using TARN::BaseTheme;

namespace {

void apply(const char *name)
{
    BaseTheme(text(MOX_SHIPPED_THEMES) + QLatin1Char('/') + text(name)).customize(qApp);
}

void leave()
{
    QApplication::setStyle(QStyleFactory::create(text("fusion")));
}

/// Returns how \a window looks when its layout has followed.
QImage settled(QWidget &window)
{
    QCoreApplication::processEvents();
    return window.grab().toImage();
}

/// Returns a window of widgets that polishing changes, each in its own way.
std::unique_ptr<QWidget> manyWidgets()
{
    auto window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(window.get());
    auto *tabs = new QTabWidget;
    tabs->addTab(new QLabel(text("page")), text("tab"));
    auto *pill = new QLabel(text("pill"));
    pill->setProperty("Pill_Font", true);
    auto *subtitle = new QLabel(text("subtitle"));
    subtitle->setProperty("CardWidgetBase_Subtitle", true);
    auto *disabled = new QLabel(text("disabled"));
    disabled->setEnabled(false);
    auto *list = new QListWidget;
    list->addItems({text("one"), text("two")});
    auto *combo = new QComboBox;
    combo->addItems({text("one"), text("two")});
    auto *clearable = new QLineEdit(text("text"));
    clearable->setClearButtonEnabled(true);
    auto *link = new QCommandLinkButton(text("link"));
    auto *bar = new QProgressBar;
    bar->setOrientation(Qt::Vertical);
    bar->setValue(50);
    auto *toolBox = new QToolBox;
    toolBox->addItem(new QLabel(text("contents")), text("item"));
    QWidget *const widgets[] = {tabs,
                                pill,
                                subtitle,
                                disabled,
                                list,
                                combo,
                                link,
                                bar,
                                toolBox,
                                new QTreeWidget,
                                new QScrollArea,
                                new QStatusBar,
                                new QGroupBox(text("group")),
                                clearable};
    for (QWidget *widget : widgets) {
        layout->addWidget(widget);
    }
    window->resize(500, 900);
    return window;
}

/// Returns everything of \a widget that polishing may touch.
QVariantMap stateOf(const QWidget &widget)
{
    QVariantMap state{{text("palette"), widget.palette()},
                      {text("roles"), widget.palette().resolve()},
                      {text("font"), widget.font()},
                      {text("font attributes"), widget.font().resolve()},
                      {text("minimum size"), widget.minimumSize()},
                      {text("flags"), int(widget.windowFlags())},
                      {text("background role"), int(widget.backgroundRole())}};
    const QList<QByteArray> names = widget.dynamicPropertyNames();
    for (const QByteArray &name : names) {
        state.insert(text("property ") + text(name), widget.property(name));
    }
    for (const auto attribute : {Qt::WA_Hover, Qt::WA_MouseTracking, Qt::WA_StyledBackground,
                                 Qt::WA_SetFont, Qt::WA_SetPalette, Qt::WA_OpaquePaintEvent}) {
        state.insert(text("attribute %1").arg(attribute), widget.testAttribute(attribute));
    }
    if (const auto *bar = qobject_cast<const QProgressBar *>(&widget)) {
        state.insert(text("direction"), int(bar->textDirection()));
    }
    if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget)) {
        state.insert(text("delegate"), QVariant::fromValue<QObject *>(view->itemDelegate()));
    }
    if (const QLayout *layout = widget.layout()) {
        const QMargins margins = layout->contentsMargins();
        state.insert(text("margins"),
                     QRect(margins.left(), margins.top(), margins.right(), margins.bottom()));
        state.insert(text("spacing"), layout->spacing());
    }
    return state;
}

/// Returns the names of what \a now and \a before differ in.
QString differences(const QVariantMap &now, const QVariantMap &before)
{
    QStringList names = (now.keys() + before.keys());
    names.removeDuplicates();
    QStringList differing;
    std::copy_if(names.cbegin(), names.cend(), std::back_inserter(differing),
                 [&](const QString &name) { return now.value(name) != before.value(name); });
    return differing.join(text(", "));
}

} // namespace

/// What an application gets that asks for complete theming, and what it keeps.
class CompleteModeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qApp->setProperty("appCompleteTheming", true); }

    void noStyleSheetIsInstalled()
    {
        apply("Dark");
        QCOMPARE(qApp->styleSheet(), QString());
        QVERIFY(qobject_cast<BaseStyle *>(QApplication::style()));
    }

    void theProgramsStyleSheetStays()
    {
        const QString sheet = text("QLabel { color: red; }");
        qApp->setStyleSheet(sheet);
        apply("Dark");
        QCOMPARE(qApp->styleSheet(), sheet);
        apply("Light");
        QCOMPARE(qApp->styleSheet(), sheet);
    }

    void theModeIsThatOfTheNextTheme()
    {
        qApp->setProperty("appCompleteTheming", QVariant());
        apply("Dark");
        QVERIFY(!qApp->styleSheet().isEmpty());
        qApp->setProperty("appCompleteTheming", true);
        QVERIFY(!qApp->styleSheet().isEmpty());
        apply("Light");
        QCOMPARE(qApp->styleSheet(), QString());
        qApp->setProperty("appCompleteTheming", false);
        apply("Dark");
        QVERIFY(!qApp->styleSheet().isEmpty());
    }

    void aStyleSheetThatTookThePlaceOfTheThemesStays()
    {
        qApp->setProperty("appCompleteTheming", QVariant());
        apply("Dark");
        const QString sheet = text("QLabel { color: red; }");
        qApp->setStyleSheet(sheet);
        qApp->setProperty("appCompleteTheming", true);
        apply("Light");
        QCOMPARE(qApp->styleSheet(), sheet);
    }

    void stylesOfTheProgramHaveTheThemesPalette()
    {
        apply("Dark");
        const BaseStyle style;
        QCOMPARE(style.getPalette(), static_cast<BaseStyle *>(QApplication::style())->getPalette());
    }

    void rolesOfTheApplicationStay_data()
    {
        QTest::addColumn<QByteArray>("className");
        QTest::newRow("all widgets") << QByteArray();
        QTest::newRow("a class") << QByteArray("QPushButton");
    }

    void rolesOfTheApplicationStay()
    {
        QFETCH(QByteArray, className);
        const char *name = className.isEmpty() ? nullptr : className.constData();
        QPushButton button;
        QPalette palette;
        palette.setColor(QPalette::ButtonText, Qt::magenta);
        QApplication::setPalette(palette, name);
        apply("Dark");
        QCOMPARE(button.palette().color(QPalette::ButtonText), QColor(Qt::magenta));
        const QColor dark = button.palette().color(QPalette::Window);
        apply("Light");
        QCOMPARE(button.palette().color(QPalette::ButtonText), QColor(Qt::magenta));
        QVERIFY(button.palette().color(QPalette::Window) != dark);
    }

    void rolesThatAreSetLaterStay()
    {
        apply("Dark");
        QLabel label;
        QPalette palette;
        palette.setColor(QPalette::WindowText, Qt::magenta);
        QApplication::setPalette(palette, "QLabel");
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::magenta));
        apply("Light");
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::magenta));
    }

    void rolesOfWidgetsStay()
    {
        QListWidget list;
        QPalette palette;
        palette.setColor(QPalette::Base, Qt::magenta);
        list.setPalette(palette);
        list.ensurePolished();
        apply("Dark");
        QCOMPARE(list.palette().color(QPalette::Base), QColor(Qt::magenta));
        apply("Light");
        QCOMPARE(list.palette().color(QPalette::Base), QColor(Qt::magenta));
    }

    void aProgramsGroundIsThatOfViewsThatWerePolishedBefore()
    {
        apply("Dark");
        QListWidget list;
        list.ensurePolished();
        QPalette palette;
        palette.setColor(QPalette::Base, Qt::magenta);
        QApplication::setPalette(palette);
        QCOMPARE(list.palette().color(QPalette::Base), QColor(Qt::magenta));
    }

    void tabsHaveTheThemesSizeUntilSomebodySetsAnother()
    {
        apply("HighContrast");
        QWidget window;
        auto *tabs = new QTabWidget(&window);
        tabs->addTab(new QLabel, text("tab"));
        tabs->tabBar()->ensurePolished();
        const QFont themes = tabs->tabBar()->font();
        QVERIFY(themes.pointSizeF() > QApplication::font().pointSizeF());

        QFont font;
        font.setPointSizeF(23);
        window.setFont(font);
        QCOMPARE(tabs->tabBar()->font().pointSizeF(), 23.0);
        window.setFont(QFont());
        QCOMPARE(tabs->tabBar()->font(), themes);
        tabs->setFont(font);
        QCOMPARE(tabs->tabBar()->font().pointSizeF(), 23.0);
        tabs->setFont(QFont());
        QApplication::setFont(font, "QTabBar");
        QCOMPARE(tabs->tabBar()->font().pointSizeF(), 23.0);
        apply("Dark");
        QCOMPARE(tabs->tabBar()->font().pointSizeF(), 23.0);
    }

    void theProgramsFontStays()
    {
        QApplication::setFont(QFont(text("DejaVu Serif"), 17));
        apply("Dark");
        QCOMPARE(QApplication::font().pointSize(), 17);
        apply("Light");
        QCOMPARE(QApplication::font().family(), text("DejaVu Serif"));
    }

    void theProgramsIconThemeStays()
    {
        QIcon::setThemeName(text("program"));
        apply("Dark");
        QCOMPARE(QIcon::themeName(), text("program"));
        QCOMPARE(QIcon::fallbackThemeName(), text("Dark"));
        QVERIFY(!QIcon::fromTheme(text("action.close")).isNull());
        apply("Light");
        QCOMPARE(QIcon::themeName(), text("program"));
        QCOMPARE(QIcon::fallbackThemeName(), text("Light"));
        leave();
        QCOMPARE(QIcon::themeName(), text("program"));
        QVERIFY(QIcon::fallbackThemeName() != text("Light"));
    }

    void leavingGivesTheApplicationEverythingBack()
    {
        leave();
        const QPalette palette = QApplication::palette();
        const QPalette toolTipPalette = QToolTip::palette();
        const QFont font = QApplication::font();
        const QString iconTheme = QIcon::themeName();
        const QStringList iconPaths = QIcon::themeSearchPaths();
        const QStringList fallbackPaths = QIcon::fallbackSearchPaths();
        apply("Dark");
        apply("Light");
        QVERIFY(QApplication::palette() != palette);
        QVERIFY(QApplication::font() != font);
        leave();
        QCOMPARE(QApplication::palette(), palette);
        QCOMPARE(QToolTip::palette(), toolTipPalette);
        QCOMPARE(QApplication::font(), font);
        QCOMPARE(QApplication::font("QTabBar"), font);
        QCOMPARE(QIcon::themeName(), iconTheme);
        QCOMPARE(QIcon::themeSearchPaths(), iconPaths);
        QCOMPARE(QIcon::fallbackSearchPaths(), fallbackPaths);
        QVERIFY(QDir::searchPaths(text("icons")).isEmpty());
    }

    void whatTheProgramChangedSinceStaysWhenTheStyleLeaves()
    {
        apply("Dark");
        QApplication::setFont(QFont(text("DejaVu Serif"), 17));
        QIcon::setThemeName(text("program"));
        leave();
        QCOMPARE(QApplication::font(), QFont(text("DejaVu Serif"), 17));
        QCOMPARE(QIcon::themeName(), text("program"));
    }

    void leavingGivesWidgetsEverythingBack()
    {
        leave();
        const std::unique_ptr<QWidget> window = manyWidgets();
        window->show();
        const QImage picture = settled(*window);
        const QList<QWidget *> widgets = window->findChildren<QWidget *>();
        QVector<QVariantMap> states;
        for (const QWidget *widget : widgets) {
            states.append(stateOf(*widget));
        }
        apply("Dark");
        QVERIFY(settled(*window) != picture);
        apply("Light");
        leave();
        for (int i = 0; i < widgets.size(); ++i) {
            QCOMPARE(text(widgets[i]->metaObject()->className()) + u' ' +
                         differences(stateOf(*widgets[i]), states[i]),
                     text(widgets[i]->metaObject()->className()) + u' ');
        }
        QCOMPARE(settled(*window), picture);
    }

    void whatWidgetsWereGivenSinceStaysWhenTheStyleLeaves()
    {
        apply("Dark");
        QListWidget list;
        list.ensurePolished();
        QPalette palette = list.palette();
        palette.setColor(QPalette::Base, Qt::magenta);
        list.setPalette(palette);
        list.setProperty("drawItemsSeparators", false);
        leave();
        QCOMPARE(list.palette().color(QPalette::Base), QColor(Qt::magenta));
        QCOMPARE(list.property("drawItemsSeparators"), QVariant(false));
    }

    void delegatesOfComboBoxes()
    {
        apply("Dark");
        QComboBox combo;
        combo.addItem(text("one"));
        auto *own = new QStyledItemDelegate(&combo);
        QComboBox withOwn;
        withOwn.addItem(text("one"));
        withOwn.setItemDelegate(own);
        combo.showPopup();
        withOwn.showPopup();
        QVERIFY(combo.view()->itemDelegate()->inherits("TARN::ComboBoxDefaultItemDelegate"));
        QCOMPARE(withOwn.view()->itemDelegate(), own);
        combo.hidePopup();
        withOwn.hidePopup();
        leave();
        QVERIFY(!combo.view()->itemDelegate()->inherits("TARN::ComboBoxDefaultItemDelegate"));
        QCOMPARE(withOwn.view()->itemDelegate(), own);
        combo.showPopup();
        QVERIFY(combo.grab().width() > 0);
    }

    void widgetsThatAreGoneAreForgotten()
    {
        apply("Dark");
        {
            const std::unique_ptr<QWidget> window = manyWidgets();
            window->show();
        }
        leave();
        QVERIFY(!qobject_cast<BaseStyle *>(QApplication::style()));
    }

    void aStyleOfOneWidgetGivesEverythingBackWhenItIsDeleted()
    {
        leave();
        QListWidget list;
        list.show();
        const QVariantMap before = stateOf(list);
        apply("Dark");
        auto style = std::make_unique<BaseStyle>();
        leave();
        list.setStyle(style.get());
        QVERIFY(stateOf(list) != before);
        list.setStyle(nullptr);
        QCOMPARE(differences(stateOf(list), before), QString());
    }
};

QTEST_MAIN(CompleteModeTest)
#include "CompleteModeTest.moc"
