#pragma once

#include <QString>

/*
 * The work each of the configuration's own fuzz targets does with one input file: what
 * the wizard does with a file a user opens.
 */
class FuzzChecks
{
public:
    FuzzChecks() = delete;

    // Check that the one-pass reader and Qt's parser agree; load, render the summary, read
    // and write a value, sort and write the text.
    static void document(const QString& path);
    // Load the document and the connection model from it, then write the model back.
    static void connectionModel(const QString& path);
    // Load the document and the printers from it, then write them back.
    static void printers(const QString& path);
};
