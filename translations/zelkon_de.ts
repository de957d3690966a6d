<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AltirisFrame</name>
    <message>
        <source>		Altiris</source>
        <translation>		Altiris</translation>
    </message>
    <message>
        <source>&lt;b&gt;Altiris&lt;/b&gt; &lt;br&gt; This enables or disables the Altiris management agent and enables you to specify the server to connect to.</source>
        <translation>&lt;b&gt;Altiris&lt;/b&gt; &lt;br&gt; Hiermit wird der Altiris-Verwaltungs­agent aktiviert oder deaktiviert und der Server festgelegt, mit dem er sich verbindet.</translation>
    </message>
    <message>
        <source>Server Address:</source>
        <translation>Serveradresse:</translation>
    </message>
</context>
<context>
    <name>AutoUpdateFrame</name>
    <message>
        <source>Automatic Updates</source>
        <translation>Automatische Updates</translation>
    </message>
    <message>
        <source>&lt;b&gt;Automatic Updates&lt;/b&gt; &lt;br&gt; This enables and configures automatic updates using System Update for CE Thin Clients.</source>
        <translation>&lt;b&gt;Automatische Updates&lt;/b&gt; &lt;br&gt; Hiermit werden automatische Updates über System Update für CE-Thin-Clients aktiviert und eingerichtet.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Automatic Updates&lt;/b&gt; &lt;br&gt; This enables and configures automatic updates using Tavlo Automatic Update for Lunvex.</source>
        <translation>&lt;b&gt;Automatische Updates&lt;/b&gt; &lt;br&gt; Hiermit werden automatische Updates über Tavlo Automatic Update für Lunvex aktiviert und eingerichtet.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Automatic Updates&lt;/b&gt; &lt;br&gt; This enables and configures automatic updates using the following systems:&lt;p&gt;1. Tavlo Automatic Update for Lunvex Thin Clients.&lt;/p&gt;&lt;p&gt;2. System Update for CE Thin Clients.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Automatische Updates&lt;/b&gt; &lt;br&gt; Hiermit werden automatische Updates über folgende Systeme aktiviert und eingerichtet:&lt;p&gt;1. Tavlo Automatic Update für Lunvex-Thin-Clients.&lt;/p&gt;&lt;p&gt;2. System Update für CE-Thin-Clients.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>File Server URL:</source>
        <translation>URL des Dateiservers:</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Pfad:</translation>
    </message>
</context>
<context>
    <name>ButtonDelegate</name>
    <message>
        <source>Edit the connection</source>
        <translation>Verbindung bearbeiten</translation>
    </message>
    <message>
        <source>Delete the connection</source>
        <translation>Verbindung löschen</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Configuration wizard for Tavlo Thin Clients.</source>
        <translation>Konfigurationsassistent für Tavlo-Thin-Clients.</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Diese Hilfe anzeigen und beenden.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Die Version anzeigen und beenden.</translation>
    </message>
    <message>
        <source>Target platform: lunvex, wes, wes7 or ce.</source>
        <translation>Zielplattform: lunvex, wes, wes7 oder ce.</translation>
    </message>
    <message>
        <source>platform</source>
        <translation>Plattform</translation>
    </message>
    <message>
        <source>Prepare configuration files instead of configuring this device.</source>
        <translation>Konfigurationsdateien vorbereiten, statt dieses Gerät zu konfigurieren.</translation>
    </message>
    <message>
        <source>Behave as on the device whose file tree is copied in &lt;dir&gt;.</source>
        <translation>Sich verhalten wie auf dem Gerät, dessen Dateibaum nach &lt;dir&gt; kopiert ist.</translation>
    </message>
    <message>
        <source>dir</source>
        <translation>dir</translation>
    </message>
    <message>
        <source>Render every page into a PNG file in &lt;dir&gt; and exit.</source>
        <translation>Jede Seite als PNG-Datei in &lt;dir&gt; ausgeben und beenden.</translation>
    </message>
    <message>
        <source>Configuration file (.tavlocfg) to open.</source>
        <translation>Zu öffnende Konfigurationsdatei (.tavlocfg).</translation>
    </message>
    <message>
        <source>[file]</source>
        <translation>[Datei]</translation>
    </message>
    <message>
        <source>Unknown platform &quot;%1&quot;; choose one of %2.</source>
        <translation>Unbekannte Plattform „%1“; wählen Sie eine von %2.</translation>
    </message>
    <message>
        <source>--device-root needs a directory.</source>
        <translation>--device-root braucht einen Ordner.</translation>
    </message>
    <message>
        <source>--screenshots needs a directory.</source>
        <translation>--screenshots braucht einen Ordner.</translation>
    </message>
    <message>
        <source>Only one configuration file can be opened, not %1.</source>
        <translation>Es kann nur eine Konfigurationsdatei geöffnet werden, nicht %1.</translation>
    </message>
    <message>
        <source>Show the wizard in this language (%1) instead of the system&apos;s.</source>
        <translation>Den Assistenten in dieser Sprache (%1) statt in der des Systems anzeigen.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Unknown language &quot;%1&quot;; choose one of %2.</source>
        <translation>Unbekannte Sprache „%1“; wählen Sie eine von %2.</translation>
    </message>
</context>
<context>
    <name>ConfigFile</name>
    <message>
        <source>The configuration file is valid.</source>
        <translation>Die Konfigurationsdatei ist gültig.</translation>
    </message>
    <message>
        <source>Validation</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>The configuration file is invalid. </source>
        <translation>Die Konfigurationsdatei ist ungültig. </translation>
    </message>
    <message>
        <source>Time Zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Gebietsschema</translation>
    </message>
    <message>
        <source>Corrand</source>
        <translation>Corrand</translation>
    </message>
    <message>
        <source>Pellam</source>
        <translation>Pellam</translation>
    </message>
    <message>
        <source>Color Depth</source>
        <translation>Farbtiefe</translation>
    </message>
    <message>
        <source>Refresh Rate</source>
        <translation>Bildwiederholrate</translation>
    </message>
    <message>
        <source>Multi Monitor Mode</source>
        <translation>Mehrere Anzeigen</translation>
    </message>
    <message>
        <source>Primary Monitor</source>
        <translation>Hauptbildschirm</translation>
    </message>
    <message>
        <source>Screen Saver On</source>
        <translation>Bildschirmschoner ein</translation>
    </message>
    <message>
        <source>SSID</source>
        <translation>SSID</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>CDA</source>
        <translation>CDA</translation>
    </message>
    <message>
        <source>ICA</source>
        <translation>ICA</translation>
    </message>
    <message>
        <source>RDP</source>
        <translation>RDP</translation>
    </message>
    <message>
        <source>VMware View</source>
        <translation>VMware View</translation>
    </message>
    <message>
        <source>XenApp</source>
        <translation>XenApp</translation>
    </message>
    <message>
        <source>Web Browser</source>
        <translation>Webbrowser</translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation>Allgemeine Einstellungen</translation>
    </message>
</context>
<context>
    <name>ConfigFileCheck</name>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei existiert nicht.</translation>
    </message>
    <message>
        <source>It is a folder, not a file.</source>
        <translation>Es ist ein Ordner, keine Datei.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Sie kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>Its elements are nested more than %1 levels deep (line %2), which no configuration is.</source>
        <translation>Ihre Elemente sind tiefer als %1 Ebenen verschachtelt (Zeile %2); keine Konfiguration ist das.</translation>
    </message>
    <message>
        <source>Its entities expand to more than %1 million characters of text (line %2), which no configuration holds.</source>
        <translation>Ihre Entitäten ergeben mehr als %1 Millionen Zeichen Text (Zeile %2); so viel enthält keine Konfiguration.</translation>
    </message>
    <message>
        <source>It is not a Zelkon configuration: its root element is &lt;%1&gt; instead of &lt;zelkon&gt;.</source>
        <translation>Es ist keine Zelkon-Konfiguration: Ihr Wurzelelement ist &lt;%1&gt; statt &lt;zelkon&gt;.</translation>
    </message>
    <message>
        <source>It is larger than %1 MB, which no configuration is.</source>
        <translation>Sie ist größer als %1 MB; so groß ist keine Konfiguration.</translation>
    </message>
    <message>
        <source>It is not an XML document (line %1, column %2: %3).</source>
        <translation>Es ist kein XML-Dokument (Zeile %1, Spalte %2: %3).</translation>
    </message>
</context>
<context>
    <name>ConnectionEditor</name>
    <message>
        <source>&lt;center&gt;Please provide a connection name.&lt;/center&gt;</source>
        <translation>&lt;center&gt;Bitte geben Sie einen Verbindungsnamen an.&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;The connection name must be restricted to alphabet characters, digits (0-9), dashes (-), spaces( ), and periods (.).&lt;/center&gt;</source>
        <translation>&lt;center&gt;Der Verbindungsname darf nur Buchstaben, Ziffern (0-9), Bindestriche (-), Leerzeichen ( ) und Punkte (.) enthalten.&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;The following connection name is already in use.&lt;br&gt;&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;&lt;br&gt;Please provide an other name.&lt;/center&gt;</source>
        <translation>&lt;center&gt;Der folgende Verbindungs­name wird bereits verwendet.&lt;br&gt;&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;&lt;br&gt;Bitte geben Sie einen anderen Namen an.&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;The following connection name is already in use.&lt;br&gt;&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;&lt;br&gt;Do you want to proceed with this name?&lt;/center&gt;</source>
        <translation>&lt;center&gt;Der folgende Verbindungs­name wird bereits verwendet.&lt;br&gt;&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;&lt;br&gt;Möchten Sie diesen Namen trotzdem verwenden?&lt;/center&gt;</translation>
    </message>
</context>
<context>
    <name>ConnectionListPage</name>
    <message>
        <source>&lt;i&gt;No remote connection&lt;/i&gt;</source>
        <translation>&lt;i&gt;Keine Remoteverbindung&lt;/i&gt;</translation>
    </message>
    <message>
        <source>New remote connection</source>
        <translation>Neue Remoteverbindung</translation>
    </message>
    <message>
        <source>Enable kiosk mode</source>
        <translation>Kioskmodus aktivieren</translation>
    </message>
    <message>
        <source>Please, confirm you want to delete the connection:&lt;br&gt;&lt;br&gt;%1</source>
        <translation>Bitte bestätigen Sie, dass Sie diese Verbindung löschen möchten:&lt;br&gt;&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>ConnectionModel</name>
    <message>
        <source>Classics</source>
        <translation>Klassische Verbindungen</translation>
    </message>
    <message>
        <source>VDI connection brokers</source>
        <translation>VDI-Verbindungsbroker</translation>
    </message>
    <message>
        <source>RDP</source>
        <translation>RDP</translation>
    </message>
    <message>
        <source>ICA</source>
        <translation>ICA</translation>
    </message>
    <message>
        <source>Parlix</source>
        <translation>Parlix</translation>
    </message>
    <message>
        <source>Web Browser</source>
        <translation>Webbrowser</translation>
    </message>
    <message>
        <source>CDA mode</source>
        <translation>CDA-Modus</translation>
    </message>
    <message>
        <source>VMware View</source>
        <translation>VMware View</translation>
    </message>
    <message>
        <source>XenApp</source>
        <translation>XenApp</translation>
    </message>
    <message>
        <source>Leostream</source>
        <translation>Leostream</translation>
    </message>
    <message>
        <source>Glimt</source>
        <translation>Glimt</translation>
    </message>
    <message>
        <source>Hollis</source>
        <translation>Hollis</translation>
    </message>
    <message>
        <source>SSH</source>
        <translation>SSH</translation>
    </message>
    <message>
        <source>Telnet</source>
        <translation>Telnet</translation>
    </message>
    <message>
        <source>vWorkspace</source>
        <translation>vWorkspace</translation>
    </message>
    <message>
        <source>XDMCP</source>
        <translation>XDMCP</translation>
    </message>
</context>
<context>
    <name>ConnectionSelectorPage</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ConnectionSessionEditor</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ConnectionsFrame</name>
    <message>
        <source>Connections</source>
        <translation>Verbindungen</translation>
    </message>
</context>
<context>
    <name>CorrandFrame</name>
    <message>
        <source>Corrand</source>
        <translation>Corrand</translation>
    </message>
    <message>
        <source>&lt;b&gt;Corrand&lt;/b&gt; &lt;br&gt; This enables or disables the Corrand Agent. For more information please see %1</source>
        <translation>&lt;b&gt;Corrand&lt;/b&gt; &lt;br&gt; Hiermit wird der Corrand-Agent aktiviert oder deaktiviert. Weitere Infor­mationen finden Sie unter %1</translation>
    </message>
</context>
<context>
    <name>DefaultEditor</name>
    <message>
        <source>Default Connection Editor</source>
        <translation>Standard-Verbindungseditor</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Auto start connection</source>
        <translation>Verbindung automatisch starten</translation>
    </message>
    <message>
        <source>New connection</source>
        <translation>Neue Verbindung</translation>
    </message>
</context>
<context>
    <name>DisplayCheck</name>
    <message>
        <source>Zelkon needs a display to show its window, and none was found (DISPLAY is not set). Render the pages to PNG files without one with --screenshots DIR, or start scripts/run-wizard.sh with ZELKON_USE_XVFB=1 to run the window on a virtual display.</source>
        <translation>Zelkon braucht eine Anzeige für sein Fenster, und es wurde keine gefunden (DISPLAY ist nicht gesetzt). Geben Sie die Seiten ohne Anzeige mit --screenshots DIR als PNG-Dateien aus, oder starten Sie scripts/run-wizard.sh mit ZELKON_USE_XVFB=1, um das Fenster auf einer virtuellen Anzeige zu zeigen.</translation>
    </message>
</context>
<context>
    <name>DisplayFrame</name>
    <message>
        <source>Same as primary</source>
        <translation>Wie Hauptbildschirm</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Deaktivieren</translation>
    </message>
    <message>
        <source>Extend above primary</source>
        <translation>Nach oben erweitern</translation>
    </message>
    <message>
        <source>Extend to the right of primary</source>
        <translation>Nach rechts erweitern</translation>
    </message>
    <message>
        <source>Extend to the left of primary</source>
        <translation>Nach links erweitern</translation>
    </message>
    <message>
        <source>Extend below primary</source>
        <translation>Nach unten erweitern</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>&lt;b&gt;Display&lt;/b&gt; &lt;br&gt; This configures the display. &lt;br&gt;Please note some of the options given may not apply to this Thin Client.&lt;p&gt;Resolution - the screen resolution.&lt;/p&gt;&lt;p&gt;Color depth - the color depth of the screen.&lt;/p&gt;&lt;p&gt;Refresh rate - the display&apos;s refresh rate.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Anzeige&lt;/b&gt; &lt;br&gt; Hiermit wird die Anzeige eingerichtet. &lt;br&gt;Bitte beachten Sie, dass manche Optionen auf diesen Thin Client nicht zutreffen.&lt;p&gt;Auflösung – die Bildschirm­auflösung.&lt;/p&gt;&lt;p&gt;Farbtiefe – die Farbtiefe des Bildschirms.&lt;/p&gt;&lt;p&gt;Bild­wiederhol­rate – die Bild­wiederhol­rate der Anzeige.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Multi-monitor mode -  how the screen will be arranged on multiple monitors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Mehrere Anzeigen – wie die Anzeige auf mehrere Bildschirme verteilt wird.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;On CE, DVI-I/VGA will be the primary monitor.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Unter CE ist DVI-I/VGA der Haupt­bildschirm.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Primary monitor - selects the primary monitor.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Haupt­bildschirm – wählt den Haupt­bildschirm.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Auflösung:</translation>
    </message>
    <message>
        <source>Color depth:</source>
        <translation>Farbtiefe:</translation>
    </message>
    <message>
        <source>Refresh rate:</source>
        <translation>Bildwiederholrate:</translation>
    </message>
    <message>
        <source>Multi-monitor mode:</source>
        <translation>Mehrere Anzeigen:</translation>
    </message>
    <message>
        <source>Primary monitor:</source>
        <translation>Hauptbildschirm:</translation>
    </message>
</context>
<context>
    <name>DocumentController</name>
    <message>
        <source>It cannot be read.</source>
        <translation>Sie kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The settings tool reads the configuration from &quot;%1&quot;, which could not be written. %2</source>
        <translation>Das Einstellungswerkzeug liest die Konfiguration aus „%1“, und diese Datei konnte nicht geschrieben werden. %2</translation>
    </message>
    <message>
        <source>The settings tool &quot;%1&quot; could not be started: %2</source>
        <translation>Das Einstellungswerkzeug „%1“ konnte nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>The settings tool &quot;%1&quot; stopped before it had finished: %2</source>
        <translation>Das Einstellungswerkzeug „%1“ wurde beendet, bevor es fertig war: %2</translation>
    </message>
    <message>
        <source>The settings tool &quot;%1&quot; did not finish within %2 seconds. It has been left running and may still apply the configuration; check the Thin Client&apos;s settings before you try again.</source>
        <translation>Das Einstellungswerkzeug „%1“ ist nicht innerhalb von %2 Sekunden fertig geworden. Es läuft weiter und wendet die Konfiguration möglicherweise noch an; prüfen Sie die Einstellungen des Thin Clients, bevor Sie es erneut versuchen.</translation>
    </message>
    <message>
        <source>The settings tool &quot;%1&quot; reported a failure (exit code %2); the configuration may have been applied only in part.</source>
        <translation>Das Einstellungswerkzeug „%1“ hat einen Fehler gemeldet (Exit-Code %2); die Konfiguration wurde möglicherweise nur teilweise angewendet.</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; holds a character that a configuration file cannot hold, such as a control character; remove it and save again.</source>
        <translation>Der Wert von „%1“ enthält ein Zeichen, das eine Konfigurationsdatei nicht aufnehmen kann, etwa ein Steuerzeichen; entfernen Sie es und speichern Sie erneut.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>Der Ordner „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder.</source>
        <translation>„%1“ ist kein Ordner.</translation>
    </message>
    <message>
        <source>A folder of that name is in the way.</source>
        <translation>Ein Ordner dieses Namens ist im Weg.</translation>
    </message>
    <message>
        <source>You have no permission to write there.</source>
        <translation>Sie haben keine Berechtigung, dort zu schreiben.</translation>
    </message>
    <message>
        <source>It would be larger than the %1 bytes this session may write to a file.</source>
        <translation>Sie wäre größer als die %1 Byte, die diese Sitzung in eine Datei schreiben darf.</translation>
    </message>
    <message>
        <source>It could not be written; the disk may be full.</source>
        <translation>Sie konnte nicht geschrieben werden; möglicherweise ist der Datenträger voll.</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>Zelkon configuration (*.tavlocfg)</source>
        <translation>Zelkon-Konfiguration (*.tavlocfg)</translation>
    </message>
    <message>
        <source>Open Configuration</source>
        <translation>Konfiguration öffnen</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Configuration</source>
        <translation>Konfiguration speichern</translation>
    </message>
</context>
<context>
    <name>IcaEditor</name>
    <message>
        <source>ICA connection</source>
        <translation>ICA-Verbindung</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Auto start connection</source>
        <translation>Verbindung automatisch starten</translation>
    </message>
    <message>
        <source>Enable HTTPS proxy</source>
        <translation>HTTPS-Proxy aktivieren</translation>
    </message>
    <message>
        <source>New connection</source>
        <translation>Neue Verbindung</translation>
    </message>
</context>
<context>
    <name>KeyboardFrame</name>
    <message>
        <source>Belgium</source>
        <translation>Belgien</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Brasilien</translation>
    </message>
    <message>
        <source>Canada (French)</source>
        <translation>Kanada (Französisch)</translation>
    </message>
    <message>
        <source>Chinese (Simplified) - US Keyboard</source>
        <translation>Chinesisch (vereinfacht) – US-Tastatur</translation>
    </message>
    <message>
        <source>Chinese (Traditional) - US Keyboard</source>
        <translation>Chinesisch (traditionell) – US-Tastatur</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>Kroatien</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>Tschechische Republik</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>Dänemark</translation>
    </message>
    <message>
        <source>France</source>
        <translation>Frankreich</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Deutschland</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>Ungarn</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>Italien</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japan</translation>
    </message>
    <message>
        <source>Korea</source>
        <translation>Korea</translation>
    </message>
    <message>
        <source>Latin America</source>
        <translation>Lateinamerika</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Niederlande</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Norwegen</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Polen</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Portugal</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Rumänien</translation>
    </message>
    <message>
        <source>Russia</source>
        <translation>Russland</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>Slowakei</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>Spanien</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Schweden</translation>
    </message>
    <message>
        <source>Switzerland (German)</source>
        <translation>Schweiz (Deutsch)</translation>
    </message>
    <message>
        <source>Switzerland (French)</source>
        <translation>Schweiz (Französisch)</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>Türkei</translation>
    </message>
    <message>
        <source>United Kingdom (English)</source>
        <translation>Vereinigtes Königreich (Englisch)</translation>
    </message>
    <message>
        <source>United States (English)</source>
        <translation>Vereinigte Staaten (Englisch)</translation>
    </message>
    <message>
        <source>United States (English), Dvorak</source>
        <translation>Vereinigte Staaten (Englisch), Dvorak</translation>
    </message>
    <message>
        <source>United States (English), International</source>
        <translation>Vereinigte Staaten (Englisch), international</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>Bulgarien</translation>
    </message>
    <message>
        <source>Chinese (Simplified) - IME</source>
        <translation>Chinesisch (vereinfacht) – IME</translation>
    </message>
    <message>
        <source>Chinese (Traditional) - IME</source>
        <translation>Chinesisch (traditionell) – IME</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>Ukraine</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finnland</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>&lt;b&gt;Keyboard&lt;/b&gt; &lt;br&gt; This sets the keyboard layout used by the Thin Client.</source>
        <translation>&lt;b&gt;Tastatur&lt;/b&gt; &lt;br&gt; Hiermit wird das Tastatur­layout des Thin Clients festgelegt.</translation>
    </message>
    <message>
        <source>&lt;br&gt;&lt;br&gt;&lt;b&gt; Warning - set the incorrect keyboard layout could disable Windows&apos; Text Services and Input Languages function.&lt;/b&gt;</source>
        <translation>&lt;br&gt;&lt;br&gt;&lt;b&gt; Warnung – ein falsches Tastatur­layout kann die Funktion „Textdienste und Eingabe­sprachen“ von Windows außer Betrieb setzen.&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&amp;Layout:</source>
        <translation>&amp;Layout:</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
</context>
<context>
    <name>Launcher</name>
    <message>
        <source>Try --help.</source>
        <translation>Versuchen Sie --help.</translation>
    </message>
    <message>
        <source>The device root &quot;%1&quot; is not a folder.</source>
        <translation>Der Gerätestamm „%1“ ist kein Ordner.</translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;: %2</source>
        <translation>„%1“ kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Wrote %1 pages to %2.</source>
        <translation>%1 Seiten nach %2 geschrieben.</translation>
    </message>
</context>
<context>
    <name>LocaleFrame</name>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Niederländisch</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Norwegisch</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation>Chinesisch (vereinfacht)</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation>Chinesisch (traditionell)</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Gebietsschema</translation>
    </message>
    <message>
        <source>&lt;b&gt;Locale&lt;/b&gt; &lt;br&gt;This sets the language the Thin Client will use. It will also set the format used for dates and the currency symbol.</source>
        <translation>&lt;b&gt;Gebiets­schema&lt;/b&gt; &lt;br&gt;Hiermit wird die Sprache des Thin Clients festgelegt. Sie bestimmt auch das Datums­format und das Währungs­symbol.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>Sp&amp;rache:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Start a new configuration</source>
        <translation>Eine neue Konfiguration beginnen</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Öffnen...</translation>
    </message>
    <message>
        <source>Open a configuration file</source>
        <translation>Eine Konfigurationsdatei öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the configuration</source>
        <translation>Die Konfiguration speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save the configuration under a new name</source>
        <translation>Die Konfiguration unter einem neuen Namen speichern</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;About Zelkon</source>
        <translation>&amp;Über Zelkon</translation>
    </message>
    <message>
        <source>About Zelkon</source>
        <translation>Über Zelkon</translation>
    </message>
    <message>
        <source>&lt;b&gt;Zelkon&lt;/b&gt; %1&lt;p&gt;Configuration wizard for Tavlo Thin Clients.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Zelkon&lt;/b&gt; %1&lt;p&gt;Konfigu­rations­assistent für Tavlo-Thin-Clients.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Weiter &gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Help&lt;/b&gt;</source>
        <translation>&lt;b&gt;Hilfe&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Standalone</source>
        <translation>Eigenständig</translation>
    </message>
    <message>
        <source>Prepare configuration files on this computer instead of configuring the Thin Client it runs on.</source>
        <translation>Konfigurationsdateien auf diesem Computer vorbereiten, statt den Thin Client zu konfigurieren, auf dem Zelkon läuft.</translation>
    </message>
    <message>
        <source>Target &amp;platform:</source>
        <translation>Ziel&amp;plattform:</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>Hauptwerkzeugleiste</translation>
    </message>
    <message>
        <source>Nothing has been set yet, so there is nothing to save or apply. Open a configuration file, or change settings on the pages before this one, and they will be listed here.</source>
        <translation>Noch ist nichts eingestellt, also gibt es nichts zu speichern oder anzuwenden. Öffnen Sie eine Konfigurationsdatei oder ändern Sie Einstellungen auf den vorigen Seiten; sie werden dann hier aufgeführt.</translation>
    </message>
    <message>
        <source>Open a Configuration...</source>
        <translation>Konfiguration öffnen...</translation>
    </message>
    <message>
        <source>Save the Configuration</source>
        <translation>Konfiguration speichern</translation>
    </message>
    <message>
        <source>None of this page&apos;s settings apply to %1 with the software installed here.</source>
        <translation>Keine Einstellung dieser Seite trifft auf %1 mit der hier installierten Software zu.</translation>
    </message>
    <message>
        <source>New configuration</source>
        <translation>Neue Konfiguration</translation>
    </message>
    <message>
        <source>Reading the Thin Client&apos;s current settings; this may take up to %1 seconds...</source>
        <translation>Die aktuellen Einstellungen des Thin Clients werden gelesen; das kann bis zu %1 Sekunden dauern...</translation>
    </message>
    <message>
        <source>Opening %1...</source>
        <translation>%1 wird geöffnet...</translation>
    </message>
    <message>
        <source>Zelkon</source>
        <translation>Zelkon</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened.

%2</source>
        <translation>Die Datei „%1“ kann nicht geöffnet werden.

%2</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>%1 geöffnet</translation>
    </message>
    <message>
        <source>The configuration could not be saved to &quot;%1&quot;.

%2</source>
        <translation>Die Konfiguration konnte nicht in „%1“ gespeichert werden.

%2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Applying the configuration to this Thin Client...</source>
        <translation>Die Konfiguration wird auf diesen Thin Client angewendet...</translation>
    </message>
    <message>
        <source>The configuration could not be applied to this Thin Client.

%1</source>
        <translation>Die Konfiguration konnte nicht auf diesen Thin Client angewendet werden.

%1</translation>
    </message>
    <message>
        <source>The configuration was handed to the Thin Client&apos;s settings tool.</source>
        <translation>Die Konfiguration wurde dem Einstellungswerkzeug des Thin Clients übergeben.</translation>
    </message>
    <message>
        <source>The configuration &quot;%1&quot; has unsaved changes.
Do you want to save them?</source>
        <translation>Die Konfiguration „%1“ hat ungespeicherte Änderungen.
Möchten Sie sie speichern?</translation>
    </message>
    <message>
        <source>%1[*] - Zelkon</source>
        <translation>%1[*] – Zelkon</translation>
    </message>
    <message>
        <source>Configuration: a new one, not saved yet.</source>
        <translation>Konfiguration: eine neue, noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>Configuration: %1</source>
        <translation>Konfiguration: %1</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
</context>
<context>
    <name>ManagementFrame</name>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
</context>
<context>
    <name>MessageHandler</name>
    <message>
        <source>Line %1 Col %2 %3</source>
        <translation>Zeile %1 Spalte %2 %3</translation>
    </message>
</context>
<context>
    <name>NetworkPrinterEditor</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Treiber</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>NetworkPrinterFrame</name>
    <message>
        <source>Network Printer</source>
        <translation>Netzwerkdrucker</translation>
    </message>
    <message>
        <source>&lt;b&gt;Network Printer&lt;/b&gt; &lt;br&gt; This enables you to set a list of network printers.</source>
        <translation>&lt;b&gt;Netzwerk­drucker&lt;/b&gt; &lt;br&gt; Hiermit legen Sie eine Liste von Netzwerk­druckern fest.</translation>
    </message>
</context>
<context>
    <name>NetworkPrinterListPage</name>
    <message>
        <source>&lt;i&gt;No Network Printers&lt;/i&gt;</source>
        <translation>&lt;i&gt;Keine Netzwerkdrucker&lt;/i&gt;</translation>
    </message>
    <message>
        <source>New Network Printer</source>
        <translation>Neuer Netzwerkdrucker</translation>
    </message>
    <message>
        <source>Please, confirm you want to delete the printer:&lt;br&gt;&lt;br&gt;%1</source>
        <translation>Bitte bestätigen Sie, dass Sie diesen Drucker löschen möchten:&lt;br&gt;&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>PageScreenshotter</name>
    <message>
        <source>Cannot create the folder &quot;%1&quot;.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>ParlixEditor</name>
    <message>
        <source>IBM 3151</source>
        <translation>IBM 3151</translation>
    </message>
    <message>
        <source>IBM 3270 Display</source>
        <translation>IBM 3270 Anzeige</translation>
    </message>
    <message>
        <source>IBM 3270 Printer</source>
        <translation>IBM 3270 Drucker</translation>
    </message>
    <message>
        <source>IBM 5250 Display</source>
        <translation>IBM 5250 Anzeige</translation>
    </message>
    <message>
        <source>IBM 5250 Printer</source>
        <translation>IBM 5250 Drucker</translation>
    </message>
    <message>
        <source>MD Prism</source>
        <translation>MD Prism</translation>
    </message>
    <message>
        <source>TA6530</source>
        <translation>TA6530</translation>
    </message>
    <message>
        <source>VT Series</source>
        <translation>VT-Serie</translation>
    </message>
    <message>
        <source>Wyse</source>
        <translation>Wyse</translation>
    </message>
    <message>
        <source>Tavlo 70092</source>
        <translation>Tavlo 70092</translation>
    </message>
    <message>
        <source>Ssh</source>
        <translation>Ssh</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Seriell</translation>
    </message>
    <message>
        <source>Tcp/Ip</source>
        <translation>Tcp/Ip</translation>
    </message>
    <message>
        <source>Parlix connection</source>
        <translation>Parlix-Verbindung</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Auto start connection</source>
        <translation>Verbindung automatisch starten</translation>
    </message>
    <message>
        <source>Emulation</source>
        <translation>Emulation</translation>
    </message>
    <message>
        <source>Transport</source>
        <translation>Übertragung</translation>
    </message>
    <message>
        <source>Ssh settings</source>
        <translation>Ssh-Einstellungen</translation>
    </message>
    <message>
        <source>Remote host</source>
        <translation>Entfernter Host</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Serial settings</source>
        <translation>Serielle Einstellungen</translation>
    </message>
    <message>
        <source>&lt;i&gt;default settings&lt;/i&gt;</source>
        <translation>&lt;i&gt;Standardeinstellungen&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Tcp/Ip settings</source>
        <translation>Tcp/Ip-Einstellungen</translation>
    </message>
    <message>
        <source>Local port</source>
        <translation>Lokaler Port</translation>
    </message>
    <message>
        <source>New connection</source>
        <translation>Neue Verbindung</translation>
    </message>
</context>
<context>
    <name>PellamFrame</name>
    <message>
        <source>Pellam</source>
        <translation>Pellam</translation>
    </message>
    <message>
        <source>&lt;b&gt;Pellam&lt;/b&gt; &lt;br&gt; This enables or disables the Pellam Agent. For more information please visit %1</source>
        <translation>&lt;b&gt;Pellam&lt;/b&gt; &lt;br&gt; Hiermit wird der Pellam-Agent aktiviert oder deaktiviert. Weitere Infor­mationen finden Sie unter %1</translation>
    </message>
</context>
<context>
    <name>PendingChangesDialog</name>
    <message>
        <source>Pending Changes</source>
        <translation>Ausstehende Änderungen</translation>
    </message>
    <message>
        <source>Nothing has changed since the configuration was opened.</source>
        <translation>Seit dem Öffnen der Konfiguration hat sich nichts geändert.</translation>
    </message>
    <message>
        <source>These settings differ from the configuration as it was opened and will be saved:</source>
        <translation>Diese Einstellungen weichen von der Konfiguration beim Öffnen ab und werden gespeichert:</translation>
    </message>
    <message>
        <source>These settings differ from the configuration as it was opened and will be applied to this Thin Client:</source>
        <translation>Diese Einstellungen weichen von der Konfiguration beim Öffnen ab und werden auf diesen Thin Client angewendet:</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>%1 (added)</source>
        <translation>%1 (hinzugefügt)</translation>
    </message>
    <message>
        <source>%1 (removed)</source>
        <translation>%1 (entfernt)</translation>
    </message>
</context>
<context>
    <name>PlatformChoiceFrame</name>
    <message>
        <source>There is nothing to choose here for the selected platform.</source>
        <translation>Für die gewählte Plattform gibt es hier nichts auszuwählen.</translation>
    </message>
</context>
<context>
    <name>PowerFrame</name>
    <message>
        <source>Power Management</source>
        <translation>Energieverwaltung</translation>
    </message>
    <message>
        <source>&lt;b&gt;Power Management&lt;/b&gt; &lt;br&gt; This controls power saving and related options on the Thin Client.</source>
        <translation>&lt;b&gt;Energie­verwaltung&lt;/b&gt; &lt;br&gt; Hiermit werden Energie­sparen und verwandte Optionen des Thin Clients gesteuert.</translation>
    </message>
    <message>
        <source>Screen saver on:</source>
        <translation>Bildschirmschoner nach:</translation>
    </message>
    <message>
        <source>Monitor off:</source>
        <translation>Bildschirm aus nach:</translation>
    </message>
    <message>
        <source>Thin Client sleep:</source>
        <translation>Ruhezustand nach:</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>Minuten</translation>
    </message>
</context>
<context>
    <name>PrinterEditor</name>
    <message>
        <source>Network Printers</source>
        <translation>Netzwerkdrucker</translation>
    </message>
</context>
<context>
    <name>ProxyFields</name>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadresse</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
</context>
<context>
    <name>RemoteAssistanceFrame</name>
    <message>
        <source>Remote Assistance</source>
        <translation>Fernunterstützung</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote Assistance&lt;/b&gt;&lt;br&gt;This enables or disables your Thin Client&apos;s VNC application.</source>
        <translation>&lt;b&gt;Fern­unter­stützung&lt;/b&gt;&lt;br&gt;Hiermit wird die VNC-Anwendung Ihres Thin Clients aktiviert oder deaktiviert.</translation>
    </message>
    <message>
        <source>&lt;p&gt;On CE you must supply a password when enabling VNC.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Unter CE müssen Sie beim Aktivieren von VNC ein Passwort angeben.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
</context>
<context>
    <name>SessionEditorParts</name>
    <message>
        <source>&lt;center&gt;The field &apos;%1&apos; is mandatory.&lt;/center&gt;</source>
        <translation>&lt;center&gt;Das Feld „%1“ ist ein Pflichtfeld.&lt;/center&gt;</translation>
    </message>
</context>
<context>
    <name>SoundFrame</name>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>&lt;b&gt;Sound&lt;/b&gt; &lt;br&gt; This enables or disables sound and hides or shows the volume controls.</source>
        <translation>&lt;b&gt;Ton&lt;/b&gt; &lt;br&gt; Hiermit wird der Ton aktiviert oder deaktiviert und die Lautstärke­regelung aus- oder eingeblendet.</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Hide volume control</source>
        <translation>Lautstärkeregelung ausblenden</translation>
    </message>
</context>
<context>
    <name>TimeZoneFrame</name>
    <message>
        <source>Time Zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>&lt;b&gt;Time Zone&lt;/b&gt; &lt;br&gt; This sets the Time Zone used by the Thin Client.</source>
        <translation>&lt;b&gt;Zeitzone&lt;/b&gt; &lt;br&gt; Hiermit wird die Zeitzone des Thin Clients festgelegt.</translation>
    </message>
    <message>
        <source>&amp;Area:</source>
        <translation>&amp;Gebiet:</translation>
    </message>
    <message>
        <source>&amp;City:</source>
        <translation>S&amp;tadt:</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zeitzone</translation>
    </message>
</context>
<context>
    <name>UsbFrame</name>
    <message>
        <source>USB Mass Storage</source>
        <translation>USB-Massenspeicher</translation>
    </message>
    <message>
        <source>&lt;b&gt;USB&lt;/b&gt; &lt;br&gt; This enables or disables USB mass storage automounts and potentially restricts them to read only.</source>
        <translation>&lt;b&gt;USB&lt;/b&gt; &lt;br&gt; Hiermit wird das automatische Einhängen von USB-Massen­speichern aktiviert oder deaktiviert und gegebenen­falls auf Nur-Lesen beschränkt.</translation>
    </message>
    <message>
        <source>&lt;b&gt;USB&lt;/b&gt; &lt;br&gt; This enables or disables USB mass storage and restricts USB storage devices to read only.</source>
        <translation>&lt;b&gt;USB&lt;/b&gt; &lt;br&gt; Hiermit werden USB-Massen­speicher aktiviert oder deaktiviert und USB-Speicher­geräte auf Nur-Lesen beschränkt.</translation>
    </message>
    <message>
        <source>&lt;b&gt;USB&lt;/b&gt; &lt;br&gt; This enables or disables USB mass storage.</source>
        <translation>&lt;b&gt;USB&lt;/b&gt; &lt;br&gt; Hiermit werden USB-Massen­speicher aktiviert oder deaktiviert.</translation>
    </message>
    <message>
        <source>Enable Automounts</source>
        <translation>Automatisch einhängen</translation>
    </message>
    <message>
        <source>Read-Only Automounts</source>
        <translation>Nur lesend einhängen</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Read only storage</source>
        <translation>Speicher nur lesbar</translation>
    </message>
</context>
<context>
    <name>WebBrowserEditor</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Auto start connection</source>
        <translation>Verbindung automatisch starten</translation>
    </message>
    <message>
        <source>Web Browser connection</source>
        <translation>Webbrowser-Verbindung</translation>
    </message>
    <message>
        <source>General proxy settings</source>
        <translation>Allgemeine Proxyeinstellungen</translation>
    </message>
    <message>
        <source>Enable proxy</source>
        <translation>Proxy aktivieren</translation>
    </message>
    <message>
        <source>New connection</source>
        <translation>Neue Verbindung</translation>
    </message>
</context>
<context>
    <name>WirelessFrame</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>WEP</source>
        <translation>WEP</translation>
    </message>
    <message>
        <source>WPA &amp; WPA2 Personal</source>
        <translation>WPA &amp; WPA2 Personal</translation>
    </message>
    <message>
        <source>WPA Personal</source>
        <translation>WPA Personal</translation>
    </message>
    <message>
        <source>WPA2 Personal</source>
        <translation>WPA2 Personal</translation>
    </message>
    <message>
        <source>Wireless Networking</source>
        <translation>Drahtlosnetzwerk</translation>
    </message>
    <message>
        <source>&lt;b&gt;Wireless Networking&lt;/b&gt; &lt;br&gt; This enables or disables wireless networking and configures the following encryption options.&lt;/p&gt;&lt;ul&gt;&lt;li&gt; None&lt;/li&gt;&lt;li&gt; WEP&lt;/li&gt;&lt;li&gt; WPA Personal (TKIP)&lt;/li&gt;&lt;li&gt; WPA2 Personal (AES)&lt;/li&gt;&lt;/ul&gt;&lt;p&gt; Wireless networking is not supported on all Thin Clients.&lt;p&gt;Please be aware the wireless passphrase is not encrypted in the configuraton file. &lt;/p&gt;&lt;p&gt; The WEP passphrase must contain exactly 10 or 26 characters using 0-9 and A-F.&lt;/p&gt;&lt;p&gt; The WPA Personal and WPA2 Personal passphrase must contain between 8 to 63 printable characters.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Drahtlos­netzwerk&lt;/b&gt; &lt;br&gt; Hiermit wird das Drahtlos­netzwerk aktiviert oder deaktiviert, und die folgenden Verschlüsse­lungs­optionen werden eingerichtet.&lt;/p&gt;&lt;ul&gt;&lt;li&gt; Keine&lt;/li&gt;&lt;li&gt; WEP&lt;/li&gt;&lt;li&gt; WPA Personal (TKIP)&lt;/li&gt;&lt;li&gt; WPA2 Personal (AES)&lt;/li&gt;&lt;/ul&gt;&lt;p&gt; Drahtlos­netzwerke werden nicht von allen Thin Clients unterstützt.&lt;p&gt;Bitte beachten Sie, dass die Passphrase in der Konfigu­rations­datei nicht verschlüsselt ist. &lt;/p&gt;&lt;p&gt; Die WEP-Passphrase muss genau 10 oder 26 Zeichen aus 0-9 und A-F enthalten.&lt;/p&gt;&lt;p&gt; Die Passphrase für WPA Personal und WPA2 Personal muss zwischen 8 und 63 druckbare Zeichen enthalten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>SSID:</source>
        <translation>SSID:</translation>
    </message>
    <message>
        <source>Security:</source>
        <translation>Sicherheit:</translation>
    </message>
    <message>
        <source>Passphrase:</source>
        <translation>Passphrase:</translation>
    </message>
    <message>
        <source>Please enter a valid passphrase!</source>
        <translation>Bitte geben Sie eine gültige Passphrase ein!</translation>
    </message>
</context>
<context>
    <name>ZelkonConnectionsPage</name>
    <message>
        <source>Connections</source>
        <translation>Verbindungen</translation>
    </message>
    <message>
        <source>&lt;b&gt;Connections&lt;/b&gt;&lt;br&gt;&lt;p&gt;This section enables you to create host connections for a variety of protocols.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Verbindungen&lt;/b&gt;&lt;br&gt;&lt;p&gt;In diesem Abschnitt legen Sie Verbindungen zu Host­systemen über verschiedene Protokolle an.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;The connections created can be launched using the following methods:&lt;/p&gt;&lt;p&gt;On Lunvex the connections will be available in the Control Center.&lt;/p&gt;&lt;p&gt;On WES and CE the connections will be available from the respective connection management tools.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Die angelegten Verbindungen lassen sich auf folgende Weise starten:&lt;/p&gt;&lt;p&gt;Unter Lunvex stehen die Verbindungen im Control Center bereit.&lt;/p&gt;&lt;p&gt;Unter WES und CE stehen die Verbindungen in den jeweiligen Verbindungs­verwal­tungen bereit.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;The connections will be available in the Lunvex&apos;s Control Center.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Die Verbindungen stehen im Control Center von Lunvex bereit.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;The connections will be available from the Connection Administrator.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Die Verbindungen stehen im Connection Administrator bereit.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>ZelkonManagementPage</name>
    <message>
        <source>Management</source>
        <translation>Verwaltung</translation>
    </message>
    <message>
        <source>Enables or disables the remote management tools available for Tavlo Thin Clients.</source>
        <translation>Aktiviert oder deaktiviert die Fernverwaltungswerkzeuge für Tavlo-Thin-Clients.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Management&lt;/b&gt; &lt;br&gt; These options enable you to control the remote management options available for your Thin Client.&lt;p/&gt;</source>
        <translation>&lt;b&gt;Verwaltung&lt;/b&gt; &lt;br&gt; Mit diesen Optionen steuern Sie die Fern­verwaltung Ihres Thin Clients.&lt;p/&gt;</translation>
    </message>
</context>
<context>
    <name>ZelkonPeripheralPage</name>
    <message>
        <source>Peripherals</source>
        <translation>Peripherie</translation>
    </message>
    <message>
        <source>Settings for various peripherals.</source>
        <translation>Einstellungen für verschiedene Peripheriegeräte.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Peripherals&lt;/b&gt; &lt;br&gt;This enables you to modify the configuration of various peripherals.&lt;p/&gt;</source>
        <translation>&lt;b&gt;Peripherie&lt;/b&gt; &lt;br&gt;Hiermit ändern Sie die Konfiguration ver­schiedener Geräte.&lt;p/&gt;</translation>
    </message>
</context>
<context>
    <name>ZelkonRegionalPage</name>
    <message>
        <source>Regional</source>
        <translation>Regional</translation>
    </message>
    <message>
        <source>&lt;b&gt;Regional&lt;/b&gt; &lt;br&gt;These options enable you to configure the following features of your Thin Clients:&lt;p&gt;1. The Time Zone.&lt;/p&gt;&lt;p&gt;2. The Keyboard layout.&lt;/p&gt;&lt;p&gt;3. The Locale.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Regional&lt;/b&gt; &lt;br&gt;Mit diesen Optionen richten Sie folgende Funktionen Ihrer Thin Clients ein:&lt;p&gt;1. Die Zeitzone.&lt;/p&gt;&lt;p&gt;2. Das Tastatur­layout.&lt;/p&gt;&lt;p&gt;3. Das Gebiets­schema.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>ZelkonSummaryPage</name>
    <message>
        <source>Zelkon Summary</source>
        <translation>Zelkon-Übersicht</translation>
    </message>
    <message>
        <source>Apply this configuration to this Thin Client.</source>
        <translation>Diese Konfiguration auf diesen Thin Client anwenden.</translation>
    </message>
    <message>
        <source>Save Configuration</source>
        <translation>Konfiguration speichern</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>&lt;b&gt;Summary&lt;/b&gt; &lt;br&gt;This page summarizes any customizations you have made to the configuration.</source>
        <translation>&lt;b&gt;Übersicht&lt;/b&gt; &lt;br&gt;Diese Seite fasst alle Anpassungen zusammen, die Sie an der Konfiguration vor­genommen haben.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Clicking &apos;Apply this configuration to this Thin Client&apos; will apply the customizations to this Thin Client.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ein Klick auf „Diese Konfiguration auf diesen Thin Client anwenden“ wendet die Anpassungen auf diesen Thin Client an.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Clicking &apos;Save Configuration&apos; will save the configuration in a file.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ein Klick auf „Konfi­guration speichern“ speichert die Konfiguration in einer Datei.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>ZelkonTitlePage</name>
    <message>
        <source>Zelkon</source>
        <translation>Zelkon</translation>
    </message>
    <message>
        <source>Zelkon&lt;br&gt;This enables you to configure your Thin Clients and the software installed on them.</source>
        <translation>Zelkon&lt;br&gt;Hiermit konfigurieren Sie Ihre Thin Clients und die darauf installierte Software.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Zelkon&lt;/b&gt;&lt;br&gt;This enables you to: &lt;p&gt;1. Configure regional settings.&lt;/p&gt;&lt;p&gt;2. Configure remote management solutions.&lt;/p&gt;&lt;p&gt;3. Configure peripherals.&lt;/p&gt;&lt;p&gt;4. Configure connections to host systems.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Zelkon&lt;/b&gt;&lt;br&gt;Hiermit können Sie: &lt;p&gt;1. Regionale Einstellungen vornehmen.&lt;/p&gt;&lt;p&gt;2. Lösungen zur Fern­verwaltung einrichten.&lt;/p&gt;&lt;p&gt;3. Die Peripherie einrichten.&lt;/p&gt;&lt;p&gt;4. Verbindungen zu Host­systemen einrichten.&lt;/p&gt;</translation>
    </message>
</context>
</TS>
