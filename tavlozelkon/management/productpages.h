#pragma once

#include <QString>

/*
 * Where the management help sends the administrator to read about an agent, and how
 * such a link looks in the help pane. The addresses live only here.
 */
namespace ProductPages {
QString corrand();
QString pellam();

// The address without its scheme and trailing slash, as a link text.
QString shortAddress(const QString& url);
// A hyperlink to url in the help pane's link style.
QString helpLink(const QString& url, const QString& text);
} // namespace ProductPages
