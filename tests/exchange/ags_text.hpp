#pragma once

#include <string>
#include <vector>

namespace korven::test {

/// A row of an AGS 4 file: its cells in quotes, CR LF at the end.
inline std::string rigaAgs(const std::vector<std::string>& celle) {
    std::string riga;
    for (const auto& cella : celle) {
        if (!riga.empty()) riga += ',';
        riga += '"' + cella + '"';
    }
    return riga + "\r\n";
}

/// The group LOCA of the holes given, each with its ground level.
inline std::string gruppoLoca(const std::vector<std::vector<std::string>>& fori) {
    std::string testo = rigaAgs({"GROUP", "LOCA"}) + rigaAgs({"HEADING", "LOCA_ID", "LOCA_GL"}) +
                        rigaAgs({"UNIT", "", "m"}) + rigaAgs({"TYPE", "ID", "2DP"});
    for (const auto& foro : fori) testo += rigaAgs({"DATA", foro[0], foro[1]});
    return testo + "\r\n";
}

/// The group GEOL of ranges: hole, top, base, description.
inline std::string gruppoGeol(const std::vector<std::vector<std::string>>& tratti) {
    std::string testo = rigaAgs({"GROUP", "GEOL"}) +
                        rigaAgs({"HEADING", "LOCA_ID", "GEOL_TOP", "GEOL_BASE", "GEOL_DESC",
                                 "GEOL_LEG", "GEOL_GEOL"}) +
                        rigaAgs({"UNIT", "", "m", "m", "", "", ""}) +
                        rigaAgs({"TYPE", "ID", "2DP", "2DP", "X", "PA", "PA"});
    for (const auto& t : tratti) testo += rigaAgs({"DATA", t[0], t[1], t[2], t[3], "201", "LC"});
    return testo + "\r\n";
}

}  // namespace korven::test
