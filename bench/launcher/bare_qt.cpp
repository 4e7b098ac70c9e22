// The reference for the launcher's no-upgrade run: the least a Qt Widgets program with a
// progress dialog does (application object, dialog, one pass of the event loop, quit).

#include <QApplication>
#include <QProgressDialog>
#include <QTimer>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QProgressDialog dialog;
    dialog.setRange(0, 100);
    dialog.setValue(0);
    QTimer::singleShot(0, &app, &QCoreApplication::quit);
    return app.exec();
}
