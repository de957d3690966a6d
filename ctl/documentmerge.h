#pragma once

class ConfigFile;
class QDomDocument;

/*
 * Layers one configuration over another, as fleets keep them: a site-wide base, a
 * per-site overlay, a per-device overlay.
 *
 * - A section only in the overlay is added; one in both is merged.
 * - Keys: the overlay's value wins; keys only in the base stay.
 * - Records (connection sessions by their id, printers by their name): an overlay
 *   record replaces the base record of the same identity whole, so no session ends up
 *   with half of another's fields; a record without a match is added.
 * - Groups inside a section (a browser's general_settings, a proxy) merge key by key.
 * - Repeated sections or keys of one name are paired by their position.
 */
class DocumentMerge
{
public:
    DocumentMerge() = delete;

    static void merge(ConfigFile* base, const QDomDocument& overlay);
};
