#include "launcher_probe.h"

#include <QApplication>
#include <QMetaObject>
#include <QProgressBar>

#include "launcher.h"
#include "processing-progress-dialog.h"

namespace skelda_test {

ProcessingProgressDialog* FindLauncherDialog() {
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<ProcessingProgressDialog*>(w))
            return dialog;
    }
    return nullptr;
}

void CallUpdateProgress(Launcher* launcher, int total, int steps) {
    QMetaObject::invokeMethod(launcher, "UpdateProgress", Qt::DirectConnection, Q_ARG(int, total),
                              Q_ARG(int, steps));
}

DialogRecorder::DialogRecorder(ProcessingProgressDialog* dialog) : dialog_(dialog) {
    dialog->installEventFilter(this);
    QProgressBar* bar = dialog->findChild<QProgressBar*>();
    QObject::connect(bar, &QProgressBar::valueChanged, this,
                     [this](int v) { values.push_back(v); });
}

bool DialogRecorder::eventFilter(QObject* watched, QEvent* event) {
    if (watched == dialog_ && event->type() == QEvent::Show)
        ++shows;
    if (watched == dialog_ && event->type() == QEvent::Hide) {
        ++hides;
        label_at_hide = dialog_->labelText();
        value_at_hide = dialog_->value();
    }
    return false;
}

}  // namespace skelda_test
