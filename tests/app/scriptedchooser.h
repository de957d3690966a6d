#pragma once

#include "filechooser.h"

// Answers the wizard's file dialogs with the path a test chose.
class ScriptedChooser : public FileChooser
{
public:
    QString openFileName(QWidget*, const QString&) override { return path; }
    QString saveFileName(QWidget*, const QString&) override { return path; }
    QString path;
};
