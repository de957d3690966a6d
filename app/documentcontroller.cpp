#include "documentcontroller.h"

#include "configfilecheck.h"
#include "emptyvalueholders.h"

#include "config/configfile.h"
#include "config/configschema.h"
#include "connections/model/connectionmodel.h"
#include "pages/configpage.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QStringList>
#include <sys/resource.h>

DocumentController::DocumentController(QObject* parent)
    : QObject(parent)
    , m_loaded(std::make_unique<ConfigFile>())
    , m_generated(std::make_unique<ConfigFile>())
{
}

DocumentController::~DocumentController() = default;

void DocumentController::setPages(const QList<ConfigPage*>& pages)
{
    m_pages.clear();
    for (ConfigPage* page : pages)
        m_pages.append(page);
}

void DocumentController::newDocument()
{
    m_loaded = std::make_unique<ConfigFile>();
    m_filePath.clear();
}

bool DocumentController::load(const QString& path, QString* reason)
{
    // The file is read and parsed once, by the load, and judged by what the load found.
    QString problem = ConfigFileCheck::problemBeforeReading(path);
    auto loaded = std::make_unique<ConfigFile>();
    ConfigReader::Result result;
    if (problem.isEmpty()) {
        const bool read = loaded->load(path, &result);
        problem = ConfigFileCheck::problem(result, *loaded);
        if (problem.isEmpty() && !read)
            problem = tr("It cannot be read.");
    }
    if (!problem.isEmpty()) {
        if (reason)
            *reason = problem;
        return false;
    }
    loaded->setCurrentNodeAsRoot();
    m_loaded = std::move(loaded);
    m_filePath = QFileInfo(path).absoluteFilePath();
    return true;
}

void DocumentController::loadPages()
{
    for (ConfigPage* page : qAsConst(m_pages)) {
        if (page)
            page->loadConfig(m_loaded.get(), false);
    }
    m_loaded->setCurrentNodeAsRoot();
}

/*
 * The generated document is never edited in place. Frames write only the sections they
 * hold as dirty, and the connection model appends a new "desktop" element whenever its
 * settings are dirty without removing the old one; generating into the same document
 * again (the summary is regenerated every time it is shown) would therefore pile up
 * sections. Each generation starts instead from a fresh copy of the loaded document, so
 * that it can be repeated at will, and so that whatever no page writes (sections of
 * connection types this machine cannot launch, "altiris", sections this wizard does not
 * know) is saved exactly as it was loaded.
 *
 * tidySections() then resolves what writers that append rather than replace leave
 * behind, and keeps the loaded file's section order.
 */
void DocumentController::generate()
{
    generateFor(Destination::File);
}

void DocumentController::generateFor(Destination destination)
{
    // The summary page validates the generated document. Compiling the schema costs more
    // than building the first page, so it waits for the first document to validate.
    if (!m_schemaSet) {
        m_generated->setSchema(ConfigSchema::shipped());
        m_schemaSet = true;
    }
    const QDomElement loadedRoot = m_loaded->documentElement();
    QDomElement oldRoot = m_generated->documentElement();
    QDomNode copy = m_generated->importNode(loadedRoot, true);
    m_generated->replaceChild(copy, oldRoot);
    m_generated->setCurrentNodeAsRoot();

    EmptyValueHolders holders(m_generated->documentElement());
    for (ConfigPage* page : qAsConst(m_pages)) {
        if (!page)
            continue;
        m_generated->setCurrentNodeAsRoot();
        page->saveConfig(m_generated.get());
    }
    holders.removeUnused();

    QDomElement generatedRoot = m_generated->documentElement();
    if (destination == Destination::File)
        keepUnchangedConnections(loadedRoot, generatedRoot);
    tidySections(loadedRoot, generatedRoot);
    m_generated->setCurrentNodeAsRoot();
}

/*
 * On a device the connection model writes the section of every connection type the user
 * changed and removes the sections of the others, so that the settings tool is handed
 * only the changes (standalone, every loaded type counts as changed). A saved file,
 * though, is the administrator's whole configuration: a type's section that the model
 * removed without writing it anew was unchanged, and goes back in as it was loaded.
 * A type whose connections were all deleted is written as an empty section, so it is
 * not mistaken for an unchanged one.
 */
void DocumentController::keepUnchangedConnections(const QDomElement& loadedRoot, QDomElement& generatedRoot)
{
    const QStringList types = ConnectionModel::sSupportedConnectionTypes();
    for (const QString& type : types) {
        const QDomElement loaded = loadedRoot.firstChildElement(type);
        if (!loaded.isNull() && generatedRoot.firstChildElement(type).isNull())
            generatedRoot.appendChild(m_generated->importNode(loaded, true));
    }
}

/*
 * A section name that occurs more often below the root than it did in the loaded file
 * was appended by a writer that does not replace its old section; the last one written
 * is the current one and the others go (otherwise the next load would read the stale
 * first one). Sections keep the loaded file's order; sections it did not have follow in
 * the order they were written. Repeated sections that came from the file untouched stay.
 */
void DocumentController::tidySections(const QDomElement& loadedRoot, QDomElement& generatedRoot)
{
    QStringList order;
    QHash<QString, int> loadedCount;
    for (QDomElement section = loadedRoot.firstChildElement(); !section.isNull();
         section = section.nextSiblingElement()) {
        if (!loadedCount.contains(section.tagName()))
            order.append(section.tagName());
        ++loadedCount[section.tagName()];
    }

    QStringList writtenOrder;
    QHash<QString, QList<QDomElement>> sections;
    for (QDomElement section = generatedRoot.firstChildElement(); !section.isNull();
         section = section.nextSiblingElement()) {
        if (!sections.contains(section.tagName()))
            writtenOrder.append(section.tagName());
        sections[section.tagName()].append(section);
    }
    for (const QString& name : qAsConst(writtenOrder)) {
        if (!loadedCount.contains(name))
            order.append(name);
    }

    for (auto it = sections.begin(); it != sections.end(); ++it) {
        QList<QDomElement>& group = it.value();
        if (group.size() > 1 && group.size() > loadedCount.value(it.key()))
            group = { group.constLast() };
    }

    for (QDomElement section = generatedRoot.firstChildElement(); !section.isNull();) {
        QDomElement next = section.nextSiblingElement();
        generatedRoot.removeChild(section);
        section = next;
    }
    for (const QString& name : qAsConst(order)) {
        for (const QDomElement& section : sections.value(name))
            generatedRoot.appendChild(section);
    }
}

bool DocumentController::save(const QString& path, QString* reason)
{
    generateFor(Destination::File);
    if (!m_generated->save(path)) {
        if (reason)
            *reason = saveFailureReason(path);
        return false;
    }
    m_filePath = QFileInfo(path).absoluteFilePath();
    return true;
}

bool DocumentController::apply(QString* reason)
{
    generateFor(Destination::Device);
    // The settings tool applies whatever "default.tavlocfg" holds, so it must not run
    // when this configuration could not be written there.
    if (!m_generated->save(applyFileName())) {
        // The user chose no file here, so the message must say which one it was.
        const QString path = QDir::current().absoluteFilePath(applyFileName());
        if (reason)
            *reason = tr("The settings tool reads the configuration from \"%1\", which could not be written. %2")
                          .arg(QDir::toNativeSeparators(path), saveFailureReason(path));
        return false;
    }
    m_generated->apply(applyFileName());
    const ExternalTool::Result result = m_generated->lastToolResult();
    if (!result.succeeded()) {
        if (reason)
            *reason = toolFailureReason(result);
        return false;
    }
    return true;
}

// The document layer runs the tool without a word; the user must still learn whether the
// device took the configuration.
QString DocumentController::toolFailureReason(const ExternalTool::Result& result)
{
    const QString tool = QStringLiteral("tavlosettings");
    switch (result.outcome) {
    case ExternalTool::Result::Outcome::NotStarted:
        return tr("The settings tool \"%1\" could not be started: %2").arg(tool, result.errorText);
    case ExternalTool::Result::Outcome::Crashed:
        return tr("The settings tool \"%1\" stopped before it had finished: %2").arg(tool, result.errorText);
    case ExternalTool::Result::Outcome::TimedOut:
        return tr("The settings tool \"%1\" did not finish within %2 seconds. It has been left running and may "
                  "still apply the configuration; check the Thin Client's settings before you try again.")
            .arg(tool)
            .arg(ExternalTool::DefaultTimeoutMs / 1000);
    case ExternalTool::Result::Outcome::Finished:
        break;
    }
    return tr("The settings tool \"%1\" reported a failure (exit code %2); the configuration may have been "
              "applied only in part.")
        .arg(tool)
        .arg(result.exitCode);
}

// The document layer only says that writing failed; tell the user the likely cause.
QString DocumentController::saveFailureReason(const QString& path) const
{
    const QString unwritable = m_generated->unwritablePath();
    if (!unwritable.isEmpty())
        return tr("The value of \"%1\" holds a character that a configuration file cannot hold, such as a "
                  "control character; remove it and save again.")
            .arg(unwritable);
    const QFileInfo info(path);
    const QFileInfo folder(info.absolutePath());
    if (!folder.exists())
        return tr("The folder \"%1\" does not exist.").arg(QDir::toNativeSeparators(folder.absoluteFilePath()));
    if (!folder.isDir())
        return tr("\"%1\" is not a folder.").arg(QDir::toNativeSeparators(folder.absoluteFilePath()));
    if (info.isDir())
        return tr("A folder of that name is in the way.");
    if (!folder.isWritable() || (info.exists() && !info.isWritable()))
        return tr("You have no permission to write there.");
    rlimit limit {};
    if (getrlimit(RLIMIT_FSIZE, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY
        && rlim_t(m_generated->toString().toUtf8().size()) > limit.rlim_cur)
        return tr("It would be larger than the %1 bytes this session may write to a file.").arg(limit.rlim_cur);
    return tr("It could not be written; the disk may be full.");
}
