#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QProgressBar>
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

/// What an application and its widgets get back when the style of complete theming leaves them.
class LeavingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qApp->setProperty("appCompleteTheming", true); }

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

QTEST_MAIN(LeavingTest)
#include "LeavingTest.moc"
