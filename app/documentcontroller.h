#pragma once

#include "device/externaltool.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <memory>

class ConfigFile;
class ConfigPage;
class QDomElement;

/*
 * The configuration being edited and its way to and from files and the device.
 *
 * Two documents are kept. The loaded one holds the file exactly as it was read (or an
 * empty configuration after newDocument()); the pages load from it. The generated one is
 * what the summary shows, what is saved and what is applied; generate() rebuilds it from
 * a fresh copy of the loaded one each time (see generate() for why).
 */
class DocumentController : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(DocumentController)

public:
    explicit DocumentController(QObject* parent = nullptr);
    ~DocumentController() override;

    // The pages that read and write the document, in wizard order.
    void setPages(const QList<ConfigPage*>& pages);

    ConfigFile* loadedDocument() const { return m_loaded.get(); }
    ConfigFile* generatedDocument() const { return m_generated.get(); }
    // The file last opened or saved; empty for a new configuration.
    QString filePath() const { return m_filePath; }

    void newDocument();
    // Replaces the loaded document with the file's. When the file is no configuration,
    // false with a reason for the user, and nothing changes.
    bool load(const QString& path, QString* reason);
    // Fills the pages from the loaded document without reporting modifications.
    void loadPages();

    // Has every page write into a fresh copy of the loaded document: the configuration as
    // it is saved, which is also what the summary shows.
    void generate();
    // Generates and writes the result to path. False with a reason when the file could
    // not be written; the file that was there stays as it was.
    bool save(const QString& path, QString* reason);
    // Generates what the device is to change, saves it as "default.tavlocfg" in the
    // current directory and has the device's settings tool apply it. False with a reason
    // when the file could not be written or the tool was missing, failed or did not finish
    // in time.
    bool apply(QString* reason);

    static QString applyFileName() { return QStringLiteral("default.tavlocfg"); }

    // A sentence for the user on what the settings tool did when it did not succeed.
    static QString toolFailureReason(const ExternalTool::Result& result);

private:
    // A file holds the whole configuration; the device is handed only what changed.
    enum class Destination { File, Device };

    void generateFor(Destination destination);
    void keepUnchangedConnections(const QDomElement& loadedRoot, QDomElement& generatedRoot);
    static void tidySections(const QDomElement& loadedRoot, QDomElement& generatedRoot);
    QString saveFailureReason(const QString& path) const;

    std::unique_ptr<ConfigFile> m_loaded;
    std::unique_ptr<ConfigFile> m_generated;
    bool m_schemaSet = false;
    QList<QPointer<ConfigPage>> m_pages;
    QString m_filePath;
};
