#include "commandline.h"

#include "languagemanager.h"
#include "platform.h"

namespace {
const QString PlatformOption = QStringLiteral("platform");
const QString StandaloneOption = QStringLiteral("standalone");
const QString DeviceRootOption = QStringLiteral("device-root");
const QString ScreenshotsOption = QStringLiteral("screenshots");
const QString LanguageOption = QStringLiteral("language");
} // namespace

CommandLine::CommandLine()
{
    m_parser.setApplicationDescription(tr("Configuration wizard for Tavlo Thin Clients."));
    m_parser.addOption({ QStringLiteral("help"), tr("Show this help and exit.") });
    m_parser.addOption({ QStringLiteral("version"), tr("Show the version and exit.") });
    m_parser.addOption({ PlatformOption, tr("Target platform: lunvex, wes, wes7 or ce."), tr("platform") });
    m_parser.addOption({ StandaloneOption, tr("Prepare configuration files instead of configuring this device.") });
    m_parser.addOption(
        { DeviceRootOption, tr("Behave as on the device whose file tree is copied in <dir>."), tr("dir") });
    m_parser.addOption({ ScreenshotsOption, tr("Render every page into a PNG file in <dir> and exit."), tr("dir") });
    m_parser.addOption({ LanguageOption,
                         tr("Show the wizard in this language (%1) instead of the system's.")
                             .arg(LanguageManager::availableLanguages().join(QLatin1String(", "))),
                         tr("code") });
    m_parser.addPositionalArgument(QStringLiteral("file"), tr("Configuration file (.tavlocfg) to open."), tr("[file]"));
}

bool CommandLine::parse(const QStringList& arguments)
{
    m_error.clear();
    if (!m_parser.parse(arguments)) {
        m_error = m_parser.errorText();
        return false;
    }
    m_help = m_parser.isSet(QStringLiteral("help"));
    m_version = m_parser.isSet(QStringLiteral("version"));
    m_standalone = m_parser.isSet(StandaloneOption);
    m_deviceRoot = m_parser.value(DeviceRootOption);
    m_screenshotDirectory = m_parser.value(ScreenshotsOption);

    m_platformIndex = -1;
    if (m_parser.isSet(PlatformOption)) {
        const QString wanted = m_parser.value(PlatformOption);
        const QStringList platforms = Platform::list();
        for (int i = 0; i < platforms.size(); ++i) {
            if (platforms.at(i).compare(wanted, Qt::CaseInsensitive) == 0)
                m_platformIndex = i;
        }
        if (m_platformIndex < 0) {
            m_error = tr("Unknown platform \"%1\"; choose one of %2.")
                          .arg(wanted, platforms.join(QLatin1String(", ")).toLower());
            return false;
        }
    }
    m_language.clear();
    if (m_parser.isSet(LanguageOption)) {
        const QString wanted = m_parser.value(LanguageOption);
        m_language = LanguageManager::matchLanguage(wanted);
        if (m_language.isEmpty()) {
            m_error = tr("Unknown language \"%1\"; choose one of %2.")
                          .arg(wanted, LanguageManager::availableLanguages().join(QLatin1String(", ")));
            return false;
        }
    }
    if (m_parser.isSet(DeviceRootOption) && m_deviceRoot.isEmpty()) {
        m_error = tr("--device-root needs a directory.");
        return false;
    }
    if (m_parser.isSet(ScreenshotsOption) && m_screenshotDirectory.isEmpty()) {
        m_error = tr("--screenshots needs a directory.");
        return false;
    }

    const QStringList positional = m_parser.positionalArguments();
    if (positional.size() > 1) {
        m_error = tr("Only one configuration file can be opened, not %1.").arg(positional.size());
        return false;
    }
    m_fileName = positional.value(0);
    return true;
}

QString CommandLine::helpText() const
{
    return m_parser.helpText();
}
