#pragma once
// The launcher's only window: a progress dialog without controls that shows how much of the
// package has been extracted. It is created hidden and driven by the Launcher on the main
// thread through the inherited QProgressDialog operations.

#include <QProgressDialog>

class ProcessingProgressDialog : public QProgressDialog {
    Q_OBJECT

public:
    ProcessingProgressDialog();

protected:
    // Nothing may end the dialog while the worker runs: the run cannot be cancelled, and a
    // dialog closed by the window system (title bar, system menu) or rejected by the Escape
    // key would otherwise hide itself, reset its value and emit canceled(). Only the
    // Launcher hides it, when the run is over.
    void closeEvent(QCloseEvent* event) override;
    void reject() override;
};
