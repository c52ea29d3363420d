#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace korven::test {

/// Holds answers to a JSON Schema, as far as its keywords go that ours uses; another one is a
/// fault. Stricter in one thing: a field that the schema does not name is a fault too, so that
/// nothing is written that nobody tells of.
class SchemaJson {
 public:
    using Json = nlohmann::json;
    using Errori = std::vector<std::string>;

    explicit SchemaJson(Json schema) : schema_(std::move(schema)) {}

    /// What is wrong, and where: "/calcolo/segmenti: type". Empty for an answer in order.
    [[nodiscard]] Errori errori(const Json& dato) const { return errori(schema_, dato, ""); }

    /// All names of fields.
    [[nodiscard]] std::set<std::string> nomi() const {
        std::set<std::string> tutti;
        raccogli(schema_, tutti);
        return tutti;
    }

 private:
    using Regola =
        std::function<Errori(const Json& valore, const Json& dato, const std::string& dove)>;

    [[nodiscard]] Errori errori(const Json& schema, const Json& dato,
                                const std::string& dove) const {
        static const std::set<std::string> muti = {"$schema", "$defs", "title", "description"};
        Errori trovati;
        for (const auto& [parola, valore] : schema.items()) {
            if (muti.contains(parola)) continue;
            const auto regola = regole_.find(parola);
            if (regola == regole_.end()) return {dove + ": keyword " + parola};
            const Errori suoi = regola->second(valore, dato, dove);
            trovati.insert(trovati.end(), suoi.begin(), suoi.end());
        }
        return trovati;
    }

    static bool eTipo(const std::string& tipo, const Json& dato) {
        if (tipo == "integer") return dato.is_number_integer();
        if (tipo == "number") return dato.is_number();
        return tipo == dato.type_name();
    }
    static Errori seNo(bool giusto, const std::string& dove, const std::string& cosa) {
        return giusto ? Errori{} : Errori{dove + ": " + cosa};
    }
    static Errori tipo(const Json& valore, const Json& dato, const std::string& dove) {
        const Json tipi = valore.is_array() ? valore : Json::array({valore});
        return seNo(std::any_of(tipi.begin(), tipi.end(),
                                [&](const Json& t) { return eTipo(t.get<std::string>(), dato); }),
                    dove, "type");
    }
    // The branch that comes nearest tells what is wrong.
    [[nodiscard]] Errori unoDi(const Json& rami, const Json& dato, const std::string& dove) const {
        Errori migliori;
        int buoni = 0;
        for (const Json& ramo : rami) {
            const Errori suoi = errori(ramo, dato, dove);
            if (suoi.empty()) ++buoni;
            if (migliori.empty() || suoi.size() < migliori.size()) migliori = suoi;
        }
        if (buoni == 1) return {};
        return buoni == 0 ? migliori : Errori{dove + ": oneOf"};
    }
    static Errori obbligatori(const Json& nomi, const Json& dato, const std::string& dove) {
        Errori trovati;
        if (!dato.is_object()) return trovati;
        for (const std::string nome : nomi)
            if (!dato.contains(nome)) trovati.push_back(dove + '/' + nome + ": required");
        return trovati;
    }
    [[nodiscard]] Errori campi(const Json& schemi, const Json& dato,
                               const std::string& dove) const {
        Errori trovati;
        if (!dato.is_object()) return trovati;
        for (const auto& [nome, valore] : dato.items()) {
            const std::string qui = dove + '/' + nome;
            const Errori suoi =
                schemi.contains(nome) ? errori(schemi[nome], valore, qui) : Errori{qui + ": name"};
            trovati.insert(trovati.end(), suoi.begin(), suoi.end());
        }
        return trovati;
    }
    [[nodiscard]] Errori elementi(const Json& schema, const Json& dato,
                                  const std::string& dove) const {
        Errori trovati;
        if (!dato.is_array()) return trovati;
        for (std::size_t i = 0; i < dato.size(); ++i) {
            const Errori suoi = errori(schema, dato[i], dove + '/' + std::to_string(i));
            trovati.insert(trovati.end(), suoi.begin(), suoi.end());
        }
        return trovati;
    }
    static void raccogli(const Json& schema, std::set<std::string>& nomi) {
        if (!schema.is_structured()) return;
        if (schema.is_object() && schema.contains("properties"))
            for (const auto& [nome, altro] : schema["properties"].items()) nomi.insert(nome);
        for (const Json& parte : schema) raccogli(parte, nomi);
    }

    const Json schema_;
    const std::map<std::string, Regola> regole_ = {
        {"$ref",
         [this](const Json& v, const Json& dato, const std::string& dove) {
             const Json::json_pointer luogo(v.get<std::string>().substr(1));
             return errori(schema_.at(luogo), dato, dove);
         }},
        {"type", [](const Json& v, const Json& dato,
                    const std::string& dove) { return tipo(v, dato, dove); }},
        {"const", [](const Json& v, const Json& dato,
                     const std::string& dove) { return seNo(dato == v, dove, "const"); }},
        {"enum",
         [](const Json& v, const Json& dato, const std::string& dove) {
             return seNo(std::find(v.begin(), v.end(), dato) != v.end(), dove, "enum");
         }},
        {"minimum",
         [](const Json& v, const Json& dato, const std::string& dove) {
             return seNo(!dato.is_number() || dato >= v, dove, "minimum");
         }},
        {"oneOf", [this](const Json& v, const Json& dato,
                         const std::string& dove) { return unoDi(v, dato, dove); }},
        {"required", [](const Json& v, const Json& dato,
                        const std::string& dove) { return obbligatori(v, dato, dove); }},
        {"properties", [this](const Json& v, const Json& dato,
                              const std::string& dove) { return campi(v, dato, dove); }},
        {"items", [this](const Json& v, const Json& dato,
                         const std::string& dove) { return elementi(v, dato, dove); }},
    };
};

}  // namespace korven::test
