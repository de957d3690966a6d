#pragma once

/*
 * The zones the time zone frame offers, in display order: the Linux zones for Lunvex and
 * the Windows display names for CE, WES and WES7. Generated into timezonetables.cpp from
 * the lists in data/, whose README says where each comes from. The three Windows tables
 * hold one guard entry "OVERFLOW CHECK" after their last row; the counts leave it out.
 */

struct LinuxZoneRow
{
    const char* area;
    const char* city;
};

struct Wes7ZoneRow
{
    const char* displayName;
    const char* zoneId;
};

extern const LinuxZoneRow TimeZones[];
extern const int TimeZonesCount;

extern const char* const WinCeTimeZones[];
extern const int WinCeTimeZonesCount;

extern const char* const WinWesTimeZones[];
extern const int WinWesTimeZonesCount;

extern const Wes7ZoneRow WinWes7TimeZones[];
extern const int WinWes7TimeZonesCount;
