#include "platform/qt/spool_folder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <algorithm>

namespace platform {

namespace {

const QString kUnfinished = QStringLiteral(".part");

Outcome outcomeOf(const QFile &file)
{
    switch (file.error()) {
    case QFileDevice::NoError: return Outcome::Done;
    case QFileDevice::ResourceError: return Outcome::NoRoom;
    case QFileDevice::OpenError:
    case QFileDevice::PermissionsError: return Outcome::Denied;
    default: return Outcome::Broken;
    }
}

} // namespace

void SpoolFolder::warmUp()
{
    if (lastNumber < 0)
        findLastNumber();
}

Outcome SpoolFolder::put(const QByteArray &pdf, const QByteArray &text)
{
    warmUp();
    QString stem;
    Outcome outcome = reserve(stem);
    if (!done(outcome))
        return outcome;
    const QString pdfPath = stem + QStringLiteral(".pdf");
    const QString textPath = stem + QStringLiteral(".txt");
    const QString unfinishedPdf = pdfPath + kUnfinished;
    const QString unfinishedText = textPath + kUnfinished;
    outcome = write(unfinishedText, text);
    if (done(outcome))
        outcome = write(unfinishedPdf, pdf);
    // The PDF's name comes last: until then its unfinished file keeps the number ours.
    if (done(outcome))
        outcome = rename(unfinishedText, textPath);
    if (done(outcome))
        outcome = rename(unfinishedPdf, pdfPath);
    if (!done(outcome)) {
        for (const QString &path : {unfinishedText, textPath, unfinishedPdf})
            QFile::remove(path);
    }
    return outcome;
}

Outcome SpoolFolder::write(const QString &path, const QByteArray &bytes)
{
    std::unique_ptr<DiskFile> file;
    const Outcome opened = disk.open(path.toStdString(), OpenMode::CreateEmpty, file);
    return done(opened) ? file->writeAt(0, bytes.toStdString()) : opened;
}

Outcome SpoolFolder::rename(const QString &from, const QString &to)
{
    return disk.rename(from.toStdString(), to.toStdString());
}

void SpoolFolder::findLastNumber()
{
    lastNumber = 0;
    QDirIterator entries(folder, QDir::Files);
    while (entries.hasNext()) {
        const QString name = entries.nextFileInfo().fileName();
        lastNumber = std::max(lastNumber, name.left(name.indexOf(u'.')).toInt());
    }
}

Outcome SpoolFolder::reserve(QString &stem)
{
    if (!QDir().mkpath(folder))
        return Outcome::Denied;
    Outcome outcome = Outcome::Done;
    // A number that is taken explains a refusal; where nothing explains it (another process took
    // its job back just now, or the folder is closed to us), a few tries tell the two apart.
    for (int unexplained = 0; unexplained < 3;) {
        ++lastNumber;
        stem = QStringLiteral("%1/%2").arg(folder).arg(lastNumber, 4, 10, QChar(u'0'));
        const QString finished = stem + QStringLiteral(".pdf");
        QFile ours(finished + kUnfinished);
        const bool reserved = ours.open(QIODevice::WriteOnly | QIODevice::NewOnly);
        // Another process may have finished this very number since we looked.
        if (reserved && !QFile::exists(finished))
            return Outcome::Done;
        if (reserved)
            ours.remove();
        else if (!ours.exists() && !QFile::exists(finished))
            ++unexplained;
        outcome = outcomeOf(ours);
    }
    return outcome;
}

} // namespace platform
