#pragma once

#include "filechooser.h"

// Answers the wizard's file dialogs with the path a test chose, and notes where the
// dialog would have started.
class ScriptedChooser : public FileChooser
{
public:
    QString openFileName(QWidget*, const QString& start) override
    {
        startPath = start;
        return path;
    }
    QString saveFileName(QWidget*, const QString& start) override
    {
        startPath = start;
        return path;
    }
    QString path;
    QString startPath;
};
