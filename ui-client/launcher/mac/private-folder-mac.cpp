#include "mac/private-folder.h"

#include <unistd.h>

QByteArray UserPrivateFolder() {
    char folder[1024];
    const size_t size = confstr(_CS_DARWIN_USER_TEMP_DIR, folder, sizeof folder);
    return size > 0 && size <= sizeof folder ? QByteArray(folder) : QByteArray();
}
