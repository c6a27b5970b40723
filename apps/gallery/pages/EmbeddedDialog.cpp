#include "pages/EmbeddedDialog.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QFocusEvent>
#include <QtWidgets/QDialog>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

namespace TARN::Gallery {

QWidget *embedded(QDialog *dialog)
{
    auto *frame = new QFrame;
    frame->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(1, 1, 1, 1);

    dialog->setWindowFlags(Qt::Widget);
    dialog->setSizeGripEnabled(false);
    layout->addWidget(dialog);
    dialog->show();
    // A dialog prepares its first input for whoever starts to type; here nobody does.
    for (auto *edit : dialog->findChildren<QLineEdit *>()) {
        QFocusEvent event(QEvent::FocusOut);
        QCoreApplication::sendEvent(edit, &event);
    }
    QObject::connect(dialog, &QDialog::finished, dialog, &QWidget::show);
    return frame;
}

} // namespace TARN::Gallery
