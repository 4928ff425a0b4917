// SpoolFolder: where a spool printer puts its jobs, NNNN.pdf and NNNN.txt, numbered on from what
// is there, whichever process puts them.
#pragma once

#include "platform/disk.h"

#include <QByteArray>
#include <QString>

namespace platform {

class SpoolFolder {
public:
    SpoolFolder(Disk &theDisk, QString path) : disk(theDisk), folder(std::move(path)) {}

    /// Looks up the last number, so that the first put() need not; otherwise put() does it.
    void warmUp();
    /// Stores a job under the next free number. Each file appears whole under its name, the text
    /// first; a job that cannot be stored leaves nothing. The folder is made when it is missing.
    Outcome put(const QByteArray &pdf, const QByteArray &text);

private:
    void findLastNumber();
    Outcome reserve(QString &stem);

    Outcome write(const QString &path, const QByteArray &bytes);
    Outcome rename(const QString &from, const QString &to);

    Disk &disk;
    QString folder;
    int lastNumber = -1; // -1: not looked up yet
};

} // namespace platform
