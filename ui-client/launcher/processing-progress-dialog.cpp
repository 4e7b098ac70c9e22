#include "processing-progress-dialog.h"

#include <QCloseEvent>
#include <QFont>
#include <QIcon>

#include "skelda-service.h"
#include "str-table.h"

namespace {

constexpr int kAppNameStr = 13;    // app_name
constexpr int kPreparingStr = 57;  // desc_skld_env_preparing
constexpr int kDialogWidth = 400;

// The leading and trailing blanks and the line break are part of the text as shipped.
const char kStyleSheet[] =
    " QProgressDialog { background-color: WhiteSmoke; \n"
    "  vertical-align: middle } ";

}  // namespace

ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog(nullptr, Qt::WindowFlags()) {
    const QFont font(QStringLiteral("Arial"));
    const QString icon_path =
        QString::fromUtf8(Service::GetRootSkeldaResourceInstallPath().c_str()) +
        QStringLiteral("/images/ico_72_skelda.png");

    setWindowTitle(StrTable::LoadStr(kAppNameStr));
    setWindowIcon(QIcon(icon_path));
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    setValue(0);
    setRange(0, 100);
    setLabelText(StrTable::LoadStr(kPreparingStr));
    setFont(font);
    setFixedWidth(kDialogWidth);
    setModal(true);
    setWindowModality(Qt::WindowModal);
    setStyleSheet(QString::fromLatin1(kStyleSheet));
}

void ProcessingProgressDialog::closeEvent(QCloseEvent* event) {
    event->ignore();
}

void ProcessingProgressDialog::reject() {}
