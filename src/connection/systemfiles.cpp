// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/systemfiles.h"

#include <QFileInfo>

namespace corva
{

SystemFiles SystemFiles::below(const QString &root)
{
    SystemFiles files;
    QString *const paths[] = {&files.wvdialConf,
                              &files.savedWvdialConf,
                              &files.pppOptions,
                              &files.savedPppOptions,
                              &files.peer,
                              &files.savedPeer,
                              &files.resolvConf,
                              &files.savedResolvConf,
                              &files.papSecrets,
                              &files.savedPapSecrets,
                              &files.chapSecrets,
                              &files.savedChapSecrets,
                              &files.resolvconfFile,
                              &files.routeHelper,
                              &files.connectInfo,
                              &files.issue,
                              &files.journal,
                              &files.lost,
                              &files.lock};
    for (QString *path : paths)
        path->prepend(root);
    for (QString &path : files.pppLinkFiles)
        path.prepend(root);
    return files;
}

QString SystemFiles::resolver() const
{
    return QFileInfo::exists(resolvconfFile) ? resolvconfFile : resolvConf;
}

} // namespace corva
