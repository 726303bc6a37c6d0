// SPDX-License-Identifier: MIT
// Running of a scene: every stimulus with exactly the lines that belong to it.
#include "tests/guion/guion.h"
#include "tests/guion/pasos.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace Qlt4_Tabla {

namespace {

std::string en_lineas(const std::vector<std::string>& lineas) {
    if (lineas.empty()) return "\n    (nothing)";
    std::string texto;
    for (const std::string& linea : lineas) texto += "\n    " + linea;
    return texto;
}

// A record on one line of a script: line ends as they are written there.
std::string en_una_linea(const std::string& linea) {
    std::string texto;
    for (const char c : linea) {
        if (c == '\r')
            texto += "\\r";
        else if (c == '\n')
            texto += "\\n";
        else
            texto += c;
    }
    return texto;
}

class Ejecucion {
public:
    explicit Ejecucion(Conductor& conductor) : conductor_(conductor) {
        conductor_.al_suceder([this](std::string_view evento) { sucede(evento); });
    }

    Ejecucion(const Ejecucion&) = delete;
    Ejecucion& operator=(const Ejecucion&) = delete;

    ~Ejecucion() { conductor_.al_suceder({}); }

    /// The first failure as "line: what", or nothing.
    std::string corre(const Guion& guion, const Escena& escena) {
        for (const Paso& paso : guion.comun) {
            if (std::string fallo = en_su_linea(paso, [&] { haz(paso.texto); }); !fallo.empty()) return fallo;
        }
        static_cast<void>(conductor_.recoge());
        for (const Paso& paso : escena.pasos) {
            if (std::string fallo = en_su_linea(paso, [&] { toma(paso); }); !fallo.empty()) return fallo;
        }
        return en_su_linea({estimulo_.linea, {}}, [&] { comprueba(); });
    }

private:
    template <class F>
    std::string en_su_linea(const Paso& paso, F&& hace) {
        linea_ = paso.linea;
        try {
            hace();
            if (!fallo_en_evento_.empty()) throw FalloGuion(fallo_en_evento_);
        } catch (const FalloGuion& fallo) {
            return std::to_string(linea_) + ": " + fallo.what();
        }
        return {};
    }

    void toma(const Paso& paso) {
        const std::string_view texto = paso.texto;
        if (texto.front() == '>') {
            if (comprobado_) throw FalloGuion("an expected line must follow its stimulus at once");
            esperadas_.emplace_back(sin_margen(texto.substr(1)));
            return;
        }
        comprueba();
        linea_ = paso.linea;
        if (texto.front() == '?') return pregunta(conductor_, texto.substr(1));
        estimulo_ = paso;
        comprobado_ = false;
        haz(texto);
    }

    // What happened since the stimulus against the lines below it.
    void comprueba() {
        if (comprobado_) return;
        comprobado_ = true;
        linea_ = estimulo_.linea;
        std::vector<std::string> hallado = conductor_.recoge();
        std::transform(hallado.begin(), hallado.end(), hallado.begin(), en_una_linea);
        const std::vector<std::string> esperado = std::exchange(esperadas_, {});
        if (hallado == esperado) return;
        throw FalloGuion(
            estimulo_.texto + "\n  expected:" + en_lineas(esperado) + "\n  happened:" + en_lineas(hallado));
    }

    // One stimulus or one step of the host. `cuando EVENT STEP` waits for the event, once.
    void haz(std::string_view texto) {
        Palabras palabras(texto);
        const std::string primera = palabras.palabra();
        if (primera == "cuando") {
            const std::string evento = palabras.palabra();
            const std::size_t paso = texto.find(evento) + evento.size();
            reacciones_.emplace_back(evento, sin_margen(texto.substr(paso)));
            return;
        }
        if (paso_anfitrion(conductor_, primera, palabras) || paso_usuario(conductor_, primera, palabras) ||
            paso_entorno(conductor_, primera, palabras))
            return;
        throw FalloGuion("no such step: " + primera);
    }

    // No exception may cross the table.
    void sucede(std::string_view evento) {
        if (reacciones_.empty() || !evento.starts_with(reacciones_.front().first)) return;
        const std::string paso = reacciones_.front().second;
        reacciones_.pop_front();
        try {
            haz(paso);
        } catch (const FalloGuion& fallo) {
            fallo_en_evento_ = fallo.what();
        }
    }

    Conductor& conductor_;
    std::deque<std::pair<std::string, std::string>> reacciones_; // in their order, one after another
    std::string fallo_en_evento_;
    Paso estimulo_;
    std::vector<std::string> esperadas_;
    bool comprobado_ = true;
    int linea_ = 0;
};

} // namespace

std::string ejecuta(const Guion& guion, const Escena& escena, Conductor& conductor) {
    const std::string fallo = Ejecucion(conductor).corre(guion, escena);
    return fallo.empty() ? fallo : guion.fichero + ":" + fallo;
}

} // namespace Qlt4_Tabla
