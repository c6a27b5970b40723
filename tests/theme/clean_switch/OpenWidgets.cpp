#include "OpenWidgets.h"

#include "MixedWindow.h"

#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QGraphicsProxyWidget>
#include <QtWidgets/QGraphicsSimpleTextItem>
#include <QtWidgets/QGraphicsView>
#include <QtWidgets/QGraphicsWidget>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>

#include <support/Text.h>

namespace {

/// Writes with the colour and the font that its scene hands it.
class WritingWidget : public QGraphicsWidget
{
public:
    WritingWidget() { resize(200, 30); }

    void paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/,
               QWidget * /*widget*/) override
    {
        painter->setPen(palette().color(QPalette::WindowText));
        painter->setFont(font());
        painter->drawText(rect(), Qt::AlignCenter, text("Graphics widget"));
    }
};

QMenu *filledMenu(QMenuBar &bar)
{
    auto *menu = bar.addMenu(text("&File"));
    menu->addAction(QIcon::fromTheme(text("action.close")), text("With an icon"));
    menu->addAction(text("Without one"));
    menu->addSeparator();
    menu->addAction(text("Checked"))->setCheckable(true);
    menu->addMenu(text("More"))->addAction(text("Deeper"));
    bar.addMenu(text("&Edit"))->addAction(text("Entry"));
    return menu;
}

QWidget *message()
{
    auto *box = new QMessageBox(QMessageBox::Question, QString(), text("A message"),
                                QMessageBox::Ok | QMessageBox::Cancel);
    box->setWindowFlags(Qt::Widget);
    return box;
}

} // namespace

OpenWidgets::OpenWidgets()
    : m_menu(filledMenu(*m_window.menuBar()))
    , m_fonts(new QFontComboBox)
    , m_subWindows(new QMdiArea)
{
    auto *centre = new QWidget;
    auto *layout = new QVBoxLayout(centre);
    m_fonts->setCurrentFont(QFont(text("Open Sans")));
    layout->addWidget(m_fonts);
    layout->addWidget(message());
    layout->addWidget(subWindowArea(), 1);
    layout->addWidget(scene(), 1);
    m_window.setCentralWidget(centre);
    m_window.setFixedSize(700, 700);
    ::render(m_window);
    m_window.menuBar()->setActiveAction(m_menu->menuAction());
}

QWidget *OpenWidgets::subWindowArea()
{
    for (int i = 0; i < 3; ++i) {
        QMdiSubWindow *window = m_subWindows->addSubWindow(new QLabel(text("Contents")));
        window->setWindowTitle(text("Title %1").arg(i));
        window->setGeometry(20 + 200 * i, 20 + 20 * i, 180, 100);
    }
    m_subWindows->subWindowList().first()->showMinimized();
    return m_subWindows;
}

QWidget *OpenWidgets::scene()
{
    auto *view = new QGraphicsView;
    auto *scene = new QGraphicsScene(view);
    scene->addText(text("A text"));
    auto *colored = scene->addText(text("A text that the application coloured"));
    colored->setDefaultTextColor(QColor(20, 120, 220));
    auto *linked = scene->addText(QString());
    linked->setHtml(text("With a <a href='x'>link</a>"));
    auto *simple = scene->addSimpleText(text("A simple text"));
    auto *sized = scene->addSimpleText(text("A simple text of a chosen size"));
    sized->setFont(QFont(text("DejaVu Sans"), 17));
    auto *widget = new WritingWidget;
    scene->addItem(widget);
    auto *label = scene->addWidget(new QLabel(text("An embedded label")));
    // Windows keep their size.
    label->widget()->setFixedSize(200, 30);
    int y = 0;
    for (QGraphicsItem *item :
         QList<QGraphicsItem *>{colored, linked, simple, sized, widget, label}) {
        y += 30;
        item->setPos(0, y);
    }
    scene->setSceneRect(0, 0, 300, 220);
    view->setScene(scene);
    return view;
}

QImage OpenWidgets::render()
{
    const QImage window = ::render(m_window);
    const QImage menu = m_menu->grab().toImage();
    QImage both(window.width() + menu.width(), qMax(window.height(), menu.height()),
                QImage::Format_RGB32);
    both.fill(Qt::black);
    QPainter painter(&both);
    painter.drawImage(0, 0, window);
    painter.drawImage(window.width(), 0, menu);
    return both;
}
