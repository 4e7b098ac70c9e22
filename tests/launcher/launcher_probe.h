#pragma once
// Looking at a Launcher from the outside, the way the user sees it: its dialog is the one
// ProcessingProgressDialog among the top-level widgets, and its private slots are reached
// through the meta-object system, as the queued signals reach them.

#include <QEvent>
#include <QObject>
#include <QStringList>
#include <vector>

class Launcher;
class ProcessingProgressDialog;

namespace skelda_test {

// The dialog of the one Launcher that exists, or null.
ProcessingProgressDialog* FindLauncherDialog();

// Launcher::UpdateProgress(total, steps), called as a queued signal would call it.
void CallUpdateProgress(Launcher* launcher, int total, int steps);

// Records what happens to a dialog: every show and hide (with the label and value at that
// moment) and every value the progress bar takes.
class DialogRecorder : public QObject {
public:
    explicit DialogRecorder(ProcessingProgressDialog* dialog);

    int shows = 0;
    int hides = 0;
    QString label_at_hide;
    int value_at_hide = -1;
    std::vector<int> values;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ProcessingProgressDialog* dialog_;
};

}  // namespace skelda_test
