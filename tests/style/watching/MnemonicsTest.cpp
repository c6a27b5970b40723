#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <functional>
#include <support/Text.h>

using TARN::BaseStyle;

namespace {

/// A main window of widgets that have shortcuts.
class ShortcutWindow : public QMainWindow
{
    Q_OBJECT

public:
    ShortcutWindow()
    {
        auto *content = new QWidget;
        setCentralWidget(content);
        m_layout = new QVBoxLayout(content);
        label->setBuddy(edit);
        tabBar->addTab(text("&Tab"));
        tabBar->addTab(text("T&wo"));
        toolButton->setText(text("T&ool"));
        for (QWidget *widget :
             {static_cast<QWidget *>(label), static_cast<QWidget *>(edit),
              static_cast<QWidget *>(button), static_cast<QWidget *>(checkBox),
              static_cast<QWidget *>(radioButton), static_cast<QWidget *>(toolButton),
              static_cast<QWidget *>(tabBar)}) {
            m_layout->addWidget(widget);
        }
        fileMenu = menuBar()->addMenu(text("&File"));
        fileMenu->addAction(text("&Open"));
    }

    void add(QWidget *widget) { m_layout->addWidget(widget); }

    bool showActive()
    {
        show();
        activateWindow();
        return QTest::qWaitForWindowActive(this);
    }

    QLabel *label = new QLabel(text("&Name"));
    QLineEdit *edit = new QLineEdit;
    QPushButton *button = new QPushButton(text("&Apply"));
    QCheckBox *checkBox = new QCheckBox(text("&Check"));
    QRadioButton *radioButton = new QRadioButton(text("&Radio"));
    QToolButton *toolButton = new QToolButton;
    QTabBar *tabBar = new QTabBar;
    QMenu *fileMenu = nullptr;

private:
    QVBoxLayout *m_layout = nullptr;
};

/// Presses or releases \a key as the window system tells it, for whatever has the focus.
void press(QWidget &window, Qt::Key key = Qt::Key_Alt)
{
    QTest::keyPress(window.windowHandle(), key,
                    key == Qt::Key_Alt ? Qt::NoModifier : Qt::AltModifier);
}

void release(QWidget &window, Qt::Key key = Qt::Key_Alt)
{
    QTest::keyRelease(window.windowHandle(), key,
                      key == Qt::Key_Alt ? Qt::NoModifier : Qt::AltModifier);
}

QImage picture(QWidget &widget)
{
    return widget.grab().toImage();
}

int underlineHint(const QWidget &widget)
{
    return widget.style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, &widget);
}

using Maker = std::function<QWidget *()>;

template <typename Widget>
QWidget *make()
{
    return new Widget;
}

QWidget *makeReadOnlyEdit()
{
    auto *edit = new QLineEdit(text("text"));
    edit->setReadOnly(true);
    return edit;
}

QWidget *makeEditableComboBox()
{
    auto *combo = new QComboBox;
    combo->addItems({text("One"), text("Two")});
    combo->setEditable(true);
    return combo;
}

QWidget *makeComboBox()
{
    auto *combo = new QComboBox;
    combo->addItems({text("One"), text("Two")});
    return combo;
}

template <typename View>
QWidget *makeView()
{
    auto *view = new View;
    auto *model = new QStandardItemModel(view);
    model->appendRow(new QStandardItem(text("One")));
    model->appendRow(new QStandardItem(text("Two")));
    view->setModel(model);
    view->setCurrentIndex(model->index(0, 0));
    return view;
}

} // namespace

Q_DECLARE_METATYPE(Maker)

/// The underlining of keyboard shortcuts in real windows.
class MnemonicsTest : public QObject
{
    Q_OBJECT

private:
    BaseStyle *m_style = nullptr;

private Q_SLOTS:
    void initTestCase()
    {
        m_style = new BaseStyle;
        QApplication::setStyle(m_style);
    }

    void underlinedOnceAltWasPressed_data()
    {
        QTest::addColumn<QString>("member");
        for (const char *member :
             {"label", "button", "checkBox", "radioButton", "toolButton", "tabBar"}) {
            QTest::newRow(member) << text(member);
        }
    }

    void underlinedOnceAltWasPressed()
    {
        QFETCH(QString, member);
        ShortcutWindow window;
        const QMap<QString, QWidget *> members{
            {text("label"), window.label},           {text("button"), window.button},
            {text("checkBox"), window.checkBox},     {text("radioButton"), window.radioButton},
            {text("toolButton"), window.toolButton}, {text("tabBar"), window.tabBar}};
        QWidget &widget = *members.value(member);
        QVERIFY(window.showActive());
        window.edit->setFocus();
        const QImage before = picture(widget);
        QCOMPARE(underlineHint(widget), 0);
        press(window);
        QVERIFY(underlineHint(widget) != 0);
        const QImage held = picture(widget);
        QVERIFY(held != before);
        press(window, Qt::Key_F9);
        release(window, Qt::Key_F9);
        release(window);
        QVERIFY(underlineHint(widget) != 0);
        QCOMPARE(picture(widget), held);
        press(window);
        QCOMPARE(picture(widget), held);
        release(window);
    }

    void menuBarIsUnderlinedWhileAltIsHeld()
    {
        ShortcutWindow window;
        QVERIFY(window.showActive());
        window.edit->setFocus();
        QWidget &menuBar = *window.menuBar();
        const QImage before = picture(menuBar);
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(underlineHint(menuBar), 0);
            press(window);
            QVERIFY(underlineHint(menuBar) != 0);
            QVERIFY(picture(menuBar) != before);
            // Another key keeps the menu bar from taking the focus.
            press(window, Qt::Key_F9);
            release(window, Qt::Key_F9);
            release(window);
            QCOMPARE(underlineHint(menuBar), 0);
            QCOMPARE(picture(menuBar), before);
        }
    }

    void menuBarInAnotherWindowStays()
    {
        ShortcutWindow first;
        ShortcutWindow second;
        QVERIFY(second.showActive());
        QVERIFY(first.showActive());
        press(first);
        QVERIFY(underlineHint(*first.menuBar()) != 0);
        QCOMPARE(underlineHint(*second.menuBar()), 0);
        QCOMPARE(underlineHint(*second.button), 0);
        release(first);
    }

    void menusFollowTheirWindow()
    {
        ShortcutWindow window;
        QVERIFY(window.showActive());
        window.fileMenu->popup(window.pos());
        const QImage before = picture(*window.fileMenu);
        QCOMPARE(underlineHint(*window.fileMenu), 0);
        window.fileMenu->close();
        press(window);
        press(window, Qt::Key_F9);
        release(window, Qt::Key_F9);
        release(window);
        window.fileMenu->popup(window.pos());
        QVERIFY(underlineHint(*window.fileMenu) != 0);
        QVERIFY(picture(*window.fileMenu) != before);
        window.fileMenu->close();
    }

    void contextMenuFollowsTheActiveWindow()
    {
        ShortcutWindow window;
        QVERIFY(window.showActive());
        QMenu menu;
        menu.addAction(text("&Open"));
        menu.popup(window.pos());
        QApplication::setActiveWindow(&window);
        QCOMPARE(underlineHint(menu), 0);
        menu.close();
        QVERIFY(window.showActive());
        press(window);
        press(window, Qt::Key_F9);
        release(window, Qt::Key_F9);
        release(window);
        menu.popup(window.pos());
        QApplication::setActiveWindow(&window);
        QVERIFY(underlineHint(menu) != 0);
        menu.close();
    }

    void menuThatIsTheActiveWindow()
    {
        QMenu menu;
        menu.addAction(text("&Open"));
        menu.popup(QPoint());
        QApplication::setActiveWindow(&menu);
        QCOMPARE(underlineHint(menu), 0);
        menu.close();
    }

    void focus_data()
    {
        QTest::addColumn<Maker>("maker");
        QTest::newRow("line edit") << Maker(make<QLineEdit>);
        QTest::newRow("read-only line edit") << Maker(makeReadOnlyEdit);
        QTest::newRow("text edit") << Maker(make<QTextEdit>);
        QTest::newRow("plain text edit") << Maker(make<QPlainTextEdit>);
        QTest::newRow("text browser") << Maker(make<QTextBrowser>);
        QTest::newRow("spin box") << Maker(make<QSpinBox>);
        QTest::newRow("double spin box") << Maker(make<QDoubleSpinBox>);
        QTest::newRow("date edit") << Maker(make<QDateEdit>);
        QTest::newRow("combo box") << Maker(makeComboBox);
        QTest::newRow("editable combo box") << Maker(makeEditableComboBox);
        QTest::newRow("font combo box") << Maker(make<QFontComboBox>);
        QTest::newRow("list view") << Maker(makeView<QListView>);
        QTest::newRow("tree view") << Maker(makeView<QTreeView>);
        QTest::newRow("table view") << Maker(makeView<QTableView>);
        QTest::newRow("column view") << Maker(makeView<QColumnView>);
        QTest::newRow("push button") << Maker(make<QPushButton>);
        QTest::newRow("check box") << Maker(make<QCheckBox>);
        QTest::newRow("slider") << Maker(make<QSlider>);
        QTest::newRow("calendar") << Maker(make<QCalendarWidget>);
    }

    void focus()
    {
        QFETCH(Maker, maker);
        ShortcutWindow window;
        QWidget *focused = maker();
        window.add(focused);
        QVERIFY(window.showActive());
        focused->setFocus();
        QVERIFY(QApplication::focusWidget());
        QVERIFY(QApplication::focusWidget() == focused ||
                focused->isAncestorOf(QApplication::focusWidget()));
        press(window);
        QVERIFY(m_style->altDown());
        QVERIFY(m_style->hasSeenAlt(&window));
        QVERIFY(underlineHint(*window.button) != 0);
        release(window);
        QVERIFY(!m_style->altDown());
    }

    void altInDocksAndDialogs()
    {
        ShortcutWindow window;
        auto *dock = new QDockWidget(text("Dock"));
        auto *docked = new QPushButton(text("&Docked"));
        dock->setWidget(docked);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        QVERIFY(window.showActive());
        docked->setFocus();
        press(window);
        QVERIFY(m_style->hasSeenAlt(&window));
        QVERIFY(underlineHint(*docked) != 0);
        release(window);

        QDialog dialog(&window);
        auto *layout = new QVBoxLayout(&dialog);
        auto *button = new QPushButton(text("&OK"));
        layout->addWidget(button);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QCOMPARE(underlineHint(*button), 0);
        press(dialog);
        QVERIFY(m_style->hasSeenAlt(&dialog));
        QVERIFY(underlineHint(*button) != 0);
        release(dialog);
    }

    void deactivatedWindowForgetsThatAltIsHeld()
    {
        ShortcutWindow first;
        ShortcutWindow second;
        QVERIFY(second.showActive());
        QVERIFY(first.showActive());
        press(first);
        QVERIFY(m_style->altDown());
        second.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&second));
        QVERIFY(!m_style->altDown());
        QCOMPARE(underlineHint(*first.menuBar()), 0);
    }

    void closedWindowStartsAnew()
    {
        ShortcutWindow window;
        QVERIFY(window.showActive());
        press(window);
        release(window);
        QVERIFY(underlineHint(*window.button) != 0);
        window.close();
        QVERIFY(!m_style->hasSeenAlt(&window));
        QVERIFY(window.showActive());
        QCOMPARE(underlineHint(*window.button), 0);
    }

    void keysStillArrive()
    {
        ShortcutWindow window;
        QVERIFY(window.showActive());
        window.edit->setFocus();
        int opened = 0;
        int applied = 0;
        connect(window.fileMenu, &QMenu::aboutToShow, &window, [&opened] { ++opened; });
        connect(window.button, &QPushButton::clicked, &window, [&applied] { ++applied; });
        press(window);
        press(window, Qt::Key_A);
        release(window, Qt::Key_A);
        QTRY_COMPARE(applied, 1);
        press(window, Qt::Key_F);
        QCOMPARE(opened, 1);
        window.fileMenu->close();
        release(window);
    }

    // What is not seen has the base style's answer: no picture of it may depend on keys.
    void unseenWidgetsHaveTheBaseStylesAnswer()
    {
        QProxyStyle base(text("fusion"));
        const QPushButton button(text("&Apply"));
        QVERIFY(base.styleHint(QStyle::SH_UnderlineShortcut, nullptr, &button) != 0);
        QCOMPARE(underlineHint(button),
                 base.styleHint(QStyle::SH_UnderlineShortcut, nullptr, &button));
        QCOMPARE(m_style->styleHint(QStyle::SH_UnderlineShortcut),
                 base.styleHint(QStyle::SH_UnderlineShortcut));
    }
};

QTEST_MAIN(MnemonicsTest)
#include "MnemonicsTest.moc"
