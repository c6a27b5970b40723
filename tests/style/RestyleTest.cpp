#include <style/BaseStyle.h>
#include <style/ComboBoxDefaultItemDelegate.h>
#include <theme/Theme.h>
#include <theme/ThemeFactory.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <memory>
#include <support/ComboBoxes.h>
#include <support/Text.h>
#include <support/themes/IconTheme.h>
#include <support/themes/UniqueTheme.h>

using TARN::BaseStyle;
using TARN::ThemeFactory;

namespace {

constexpr int groupCount = 10;

/// A window of some hundred widgets of all kinds.
class FullWindow : public QMainWindow
{
public:
    FullWindow()
    {
        auto *content = new QWidget;
        m_layout = new QGridLayout(content);
        for (int group = 0; group < groupCount; ++group) {
            addButtons();
            addInputs();
            addViews();
            addContainers();
        }
        setCentralWidget(content);
        auto *dock = new QDockWidget(text("Dock"));
        dock->setWidget(makeComboBox(false));
        addDockWidget(Qt::RightDockWidgetArea, dock);
        menuBar()->addMenu(text("&File"))->addAction(text("&Open"));
        addToolBar(text("Tools"))->addAction(text("T&ool"));
        statusBar()->showMessage(text("Ready"));
        resize(1000, 1000);
    }

    QList<QComboBox *> comboBoxes() const { return findChildren<QComboBox *>(); }

private:
    void add(QWidget *widget)
    {
        m_layout->addWidget(widget, m_count / groupCount, m_count % groupCount);
        ++m_count;
    }

    void addButtons()
    {
        add(new QPushButton(text("&Button")));
        add(new QToolButton);
        add(new QCheckBox(text("&Check")));
        add(new QRadioButton(text("&Radio")));
        auto *link = new QCommandLinkButton(text("Continue"));
        link->setIcon(QIcon::fromTheme(text("star")));
        add(link);
        add(new QDialogButtonBox(QDialogButtonBox::Ok));
    }

    void addInputs()
    {
        auto *edit = new QLineEdit(text("text"));
        edit->setClearButtonEnabled(true);
        add(edit);
        add(new QTextEdit);
        add(new QSpinBox);
        add(new QDateTimeEdit);
        add(makeComboBox(false));
        add(makeComboBox(true));
        add(new QFontComboBox);
        add(new QSlider(Qt::Horizontal));
        add(new QDial);
        add(new QScrollBar(Qt::Vertical));
        add(new QProgressBar);
        add(new QLabel(text("Label")));
    }

    void addViews()
    {
        auto *list = new QListWidget;
        list->addItems({text("One"), text("Two")});
        add(list);
        auto *tree = new QTreeWidget;
        tree->addTopLevelItem(new QTreeWidgetItem({text("One")}));
        add(tree);
        add(new QTableWidget(2, 2));
    }

    void addContainers()
    {
        add(new QGroupBox(text("Group")));
        auto *tabs = new QTabWidget;
        tabs->addTab(new QLabel(text("Page")), text("Tab"));
        add(tabs);
        auto *toolBox = new QToolBox;
        toolBox->addItem(new QLabel(text("Page")), text("Item"));
        add(toolBox);
        add(new QScrollArea);
        add(new QFrame);
    }

    QGridLayout *m_layout = nullptr;
    int m_count = 0;
};

/// Everything that can be left over from a former style goes through its paces.
void exercise(FullWindow &window)
{
    QCoreApplication::processEvents();
    window.grab();
    for (QWidget *widget :
         {static_cast<QWidget *>(&window), static_cast<QWidget *>(window.menuBar())}) {
        QTest::keyClick(widget, Qt::Key_Alt);
    }
    for (auto *button : window.findChildren<QAbstractButton *>()) {
        button->setAttribute(Qt::WA_UnderMouse);
        button->update();
    }
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Verifies that the combo boxes in \a window have delegates of \a style, save for those that
/// bring one of their own.
void verifyDelegates(const FullWindow &window, const QObject *style)
{
    for (const QComboBox *combo : window.comboBoxes()) {
        if (qobject_cast<const QFontComboBox *>(combo)) {
            continue;
        }
        QVERIFY(delegateOf(*combo));
        QCOMPARE(delegateOf(*combo)->parent(), style);
        QCOMPARE(delegateOf(*combo)->comboBox(), combo);
        QCOMPARE(combo->view()->itemDelegate(), combo->itemDelegate());
    }
}

} // namespace

/// Styles that come and go while widgets live.
class RestyleTest : public QObject
{
    Q_OBJECT

private:
    UniqueTheme m_theme;
    std::unique_ptr<IconTheme> m_icons;

private Q_SLOTS:
    void init()
    {
        m_icons = std::make_unique<IconTheme>();
        m_icons->add(text("action.close"), referenceForeground);
        m_icons->add(text("star"), referenceForeground);
    }

    void cleanup()
    {
        qApp->setProperty("appLiveThemeSwitch", QVariant());
        qApp->setStyleSheet(QString());
        QApplication::setPalette(QPalette());
        m_icons.reset();
    }

    void stylesFollowEachOther()
    {
        QApplication::setStyle(new BaseStyle);
        FullWindow window;
        QVERIFY(window.findChildren<QWidget *>().size() > 300);
        window.show();
        exercise(window);
        for (int round = 0; round < 4; ++round) {
            auto *style = new BaseStyle;
            QApplication::setStyle(style);
            exercise(window);
            verifyDelegates(window, style);
        }
        for (QComboBox *combo : window.comboBoxes()) {
            QVERIFY(opens(*combo));
        }
    }

    void openPopUpsSurvive()
    {
        QApplication::setStyle(new BaseStyle);
        FullWindow window;
        window.show();
        QComboBox *open = window.comboBoxes().constFirst();
        for (int round = 0; round < 3; ++round) {
            open->showPopup();
            QVERIFY(open->view()->isVisible());
            open->view()->grab();
            auto *style = new BaseStyle;
            QApplication::setStyle(style);
            QCoreApplication::processEvents();
            open->view()->grab();
            exercise(window);
            QCOMPARE(open->view()->itemDelegate()->parent(), style);
        }
        open->hidePopup();
        QVERIFY(opens(*open));
    }

    void toFusionAndBack()
    {
        QApplication::setStyle(new BaseStyle);
        FullWindow window;
        window.show();
        exercise(window);
        for (int round = 0; round < 2; ++round) {
            QApplication::setStyle(text("fusion"));
            exercise(window);
            for (QComboBox *combo : window.comboBoxes()) {
                QVERIFY(combo->itemDelegate());
                QVERIFY(opens(*combo));
                if (const auto *delegate = delegateOf(*combo)) {
                    QCOMPARE(delegate->parent(), combo);
                }
            }
            QApplication::setStyle(new BaseStyle);
            exercise(window);
            for (QComboBox *combo : window.comboBoxes()) {
                QVERIFY(opens(*combo));
            }
        }
    }

    void themesFollowEachOther_data()
    {
        QTest::addColumn<bool>("clean");
        QTest::newRow("as they come") << false;
        QTest::newRow("clean switch") << true;
    }

    void themesFollowEachOther()
    {
        QFETCH(bool, clean);
        qApp->setProperty("appLiveThemeSwitch", clean);
        auto &factory = *ThemeFactory::getInstance();
        factory.setThemesRepositoryPath(text(MOX_SHIPPED_THEMES));
        factory.getTheme(text("Dark"))->customize(qApp);
        FullWindow window;
        window.show();
        for (const char *name : {"Light", "Dark", "Light"}) {
            factory.getTheme(text(name))->customize(qApp);
            exercise(window);
        }
        for (QComboBox *combo : window.comboBoxes()) {
            QVERIFY(combo->itemDelegate());
            QVERIFY(opens(*combo));
        }
    }

    void styleOfSingleWidgetsDies()
    {
        QApplication::setStyle(text("fusion"));
        std::unique_ptr<BaseStyle> style(new BaseStyle);
        FullWindow window;
        window.show();
        for (QWidget *widget : window.findChildren<QWidget *>()) {
            widget->setStyle(style.get());
        }
        window.setStyle(style.get());
        exercise(window);
        QVERIFY(style->hasSeenAlt(&window));
        style.reset();
        window.setStyle(nullptr);
        for (QWidget *widget : window.findChildren<QWidget *>()) {
            widget->setStyle(nullptr);
        }
        exercise(window);
        for (QComboBox *combo : window.comboBoxes()) {
            QVERIFY(combo->itemDelegate());
            QVERIFY(opens(*combo));
        }
    }

    void polishingAgainAddsNothing()
    {
        auto *style = new BaseStyle;
        QApplication::setStyle(style);
        FullWindow window;
        window.show();
        exercise(window);
        const QList<QWidget *> widgets = window.findChildren<QWidget *>();
        const auto polishAgain = [style, &widgets] {
            for (QWidget *widget : widgets) {
                style->unpolish(widget);
                style->polish(widget);
            }
            QCoreApplication::processEvents();
        };
        polishAgain();
        const int ofStyle = style->children().size();
        const int ofWindow = window.findChildren<QObject *>().size();
        for (int round = 0; round < 5; ++round) {
            polishAgain();
        }
        QCOMPARE(style->children().size(), ofStyle);
        // The window's layout moves its parts by animations, which are gone when they have ended.
        QTRY_COMPARE(window.findChildren<QObject *>().size(), ofWindow);
    }

    void tintFollowsTheNewTheme()
    {
        const auto paletteOf = [](const QColor &color) {
            QPalette palette;
            palette.setColor(QPalette::ButtonText, color);
            return palette;
        };
        auto *first = new BaseStyle;
        first->setPalette(paletteOf(QColor(1, 2, 3)));
        QApplication::setStyle(first);
        QCommandLinkButton link(text("Continue"));
        link.setIcon(QIcon::fromTheme(text("star")));
        link.grab();
        QCOMPARE(colorOf(link.icon()), QColor(1, 2, 3));
        auto *second = new BaseStyle;
        second->setPalette(paletteOf(QColor(4, 5, 6)));
        QApplication::setStyle(second);
        link.grab();
        QCOMPARE(colorOf(link.icon()), QColor(4, 5, 6));
    }

    void iconFollowsTheNewTheme()
    {
        QApplication::setStyle(new BaseStyle);
        QLineEdit edit(text("text"));
        edit.setClearButtonEnabled(true);
        const auto *button = edit.findChild<QToolButton *>();
        edit.grab();
        QCOMPARE(colorOf(button->icon()), button->palette().color(QPalette::WindowText));
        m_icons.reset();
        m_icons = std::make_unique<IconTheme>();
        m_icons->add(text("action.close"), Qt::red);
        QApplication::setStyle(new BaseStyle);
        edit.grab();
        QCOMPARE(colorOf(button->icon()), QColor(Qt::red));
    }
};

QTEST_MAIN(RestyleTest)
#include "RestyleTest.moc"
