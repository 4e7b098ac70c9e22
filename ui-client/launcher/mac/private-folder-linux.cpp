#include "mac/private-folder.h"

#include <sys/stat.h>
#include <unistd.h>

QByteArray UserPrivateFolder() {
    const QByteArray folder = "/tmp/skelda-launcher-" + QByteArray::number(getuid());
    mkdir(folder.constData(), 0700);  // an existing folder is checked by the caller
    return folder;
}
