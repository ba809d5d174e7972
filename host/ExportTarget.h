#pragma once

#include "ExportTable.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What an export is made of.
struct ExportTask {
    KvMvcSettings settings;
    /// The views that are coded: one, or for JM the first two.
    std::vector<int> views;
    /// One for each of these views.
    QStringList inputs;
    QString stream;
    /// The file that it is for; empty: standard output.
    QString file;
};

/// What it comes to.
struct ExportText {
    QByteArray text;
    QStringList notes;
    /// Of a further file, beside the main one: its name without the folder. Empty: there is none.
    QString secondName;
    QByteArray secondText;
};

/// An encoder that settings can be exported to.
struct ExportTarget {
    const char* name;
    /// How people call it, and what the document says of it.
    const char* title;
    const char* description;
    const ExportTable& (*table)();
    ExportText (*write)(const ExportTask& task);
    /// Suffixes of the files that it is written to; the first is named in messages.
    QStringList suffixes;
    /// The most views that one export codes.
    int mostViews;
};

const std::vector<ExportTarget>& exportTargets();

/// The job of one of the task's views.
ExportJob jobOf(const ExportTask& task, int view);

/// Whether it names pictures without a header: ".yuv", or no suffix at all.
bool isRawPictures(const QString& input);

// One of each target; each has a file of its own.

const ExportTable& x264Table();
ExportText writeX264(const ExportTask& task);
const ExportTable& ffmpegTable();
ExportText writeFfmpeg(const ExportTask& task);
const ExportTable& jmTable();
ExportText writeJm(const ExportTask& task);
