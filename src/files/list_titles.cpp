#include "files/list_titles.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "files/list_words.h"
#include "memory/channel_parts.h"

namespace rqm5 {
namespace {

struct Titles
{
    int part;
    std::string_view words;  ///< each between blanks; "_" stands for a blank inside one
};

constexpr int kIgnored = ListColumn::kIgnored;

// Without their unit and without accents. What names a receiver, a place or a day is known as a title and not
// taken over.
constexpr Titles kTitles[] = {
    {kFrequency,
     " frequency freq frq qrg rx rx_frequency rx_freq receive_frequency receive_freq "
     "channel_frequency output output_frequency frequenz frequenzen empfangsfrequenz "
     "rx_frequenz kanalfrequenz ausgabefrequenz frequence frequences frequence_rx "
     "frequence_de_reception frecuencia frecuencias frecuencia_rx frecuencia_de_recepcion frequenza "
     "frequenze "
     "周波数 受信周波数 受信 "},
    {kMode,
     " mode modulation modulation_mode mod modus betriebsart modulationsart type_de_modulation "
     "modo modulacion modo_de_modulacion モード 電波型式 変調 変調方式 変調モード "},
    {kStep,
     " step tuning_step step_size raster schrittweite kanalraster abstimmschritt schritt pas "
     "pas_d_accord paso paso_de_sintonia ステップ チューニングステップ 周波数ステップ "},
    {kOption,
     " option squelch squelch_type tone_mode rauschsperre silencieux opcion silenciador オプション "
     "スケルチ トーンモード "},
    {kSecret,
     " secret secret_code scrt geheim geheimcode code_secret secreto codigo_secreto シークレット "
     "シークレットコード 秘話 秘話コード "},
    {kCarrier,
     " carrier train train_tone zugton zugfunkton trager traeger tonalite_train tonalite_de_train porteuse "
     "tono_de_tren tono_ferroviario portadora 空線 空線信号 "},
    {kTone,
     " tone ctcss ctcss_tone ctcss_frequency ctcss_freq tone_frequency tone_freq rx_tone pl "
     "pl_tone ton ctcss_ton tonfrequenz subton tonalite tonalite_ctcss ton_ctcss tono "
     "tono_ctcss subtono トーン トーン周波数 ctcssトーン "},
    {kShift,
     " shift duplex shift_direction offset_direction ablagerichtung shiftrichtung "
     "sens_du_decalage direction_du_decalage sentido_del_desplazamiento シフト シフト方向 "
     "デュプレックス "},
    {kShiftFrequency,
     " shiftfreq shift_frequency shift_freq offset offset_frequency offset_freq ablage versatz "
     "ablagefrequenz shiftfrequenz versatzfrequenz decalage frequence_de_decalage valeur_du_decalage ecart "
     "desplazamiento frecuencia_de_desplazamiento frec_de_desplazamiento シフト周波数 オフセット "
     "オフセット周波数 "},
    {kNote,
     " note notes name channel_name alpha_tag tag label description comment comments remark "
     "remarks memo station service callsign call_sign user title text notiz notizen bemerkung "
     "bemerkungen bezeichnung beschreibung kommentar kanalname sender dienst rufzeichen nom "
     "nom_du_canal libelle remarque remarques commentaire commentaires indicatif nota notas "
     "nombre etiqueta descripcion comentario comentarios observaciones estacion indicativo nome descrizione "
     "備考 "
     "メモ 名称 名前 チャンネル名 局名 説明 コメント コールサイン "},
    {kSkipPart,
     " skip lockout l_o uberspringen ueberspringen auslassen sauter ignorer omitir saltar "
     "スキップ "},
    {kEnabledPart,
     " enable enabled active aktiv ein einschalten eingeschaltet freigegeben actif activee canal_active "
     "activo activar activado habilitado 有効 オン "},
    {ListColumn::kBank, " bank banque banc banco バンク "},
    {ListColumn::kChannel,
     " channel ch kanal kanal_in_der_bank canal voie canal_dans_la_banque canal_en_el_banco チャンネル "
     "チャネル バンク内チャンネル "},
    {ListColumn::kRow,
     " row memory_row speicherzeile ligne_memoire ligne_de_memoire fila_de_memoria メモリー行 "},
    {kIgnored,
     " model bandwidth bw bandbreite largeur_de_bande ancho_de_banda 帯域幅 spacing channel_spacing "
     "deviation hub no nr number location memory date time country city id modell nummer speicher "
     "speicherplatz zeile land stadt ort datum zeit uhrzeit kanalnummer modele numero memoire "
     "ligne pays ville heure modelo memoria fila pais ciudad fecha hora 機種 番号 メモリー "
     "メモリ 行 国 都市 日付 時刻 "},
};

/// The part that some words name.
std::optional<int> PartCalled(std::string words)
{
    std::ranges::replace(words, ' ', '_');
    const std::string wanted = ' ' + words + ' ';
    const auto* found = std::ranges::find_if(kTitles, [&wanted](const Titles& titles) {
        return titles.words.find(wanted) != std::string_view::npos;
    });
    return found != std::end(kTitles) ? std::optional(found->part) : std::nullopt;
}

void TakeEnd(std::string& words, std::string_view end)
{
    if (words.ends_with(end))
        words.resize(words.size() - end.size());
}

/// Takes the unit off the end of some words. In a Japanese title no blank stands before it.
Unit TakeUnit(std::string& words)
{
    std::size_t begin = words.size();
    while (begin > 0 && words[begin - 1] >= 'a' && words[begin - 1] <= 'z')
        --begin;
    const std::string_view last = std::string_view(words).substr(begin);
    const Unit unit = last.ends_with("hz") ? UnitNamed(last) : Unit::None;
    if (unit == Unit::None)
        return unit;
    words.resize(begin);
    TakeEnd(words, " ");
    TakeEnd(words, " in");
    TakeEnd(words, " en");
    return unit;
}

struct LikelyTitle
{
    int points = 0;
    Unit unit = Unit::None;
};

/// How surely a title that is none of the known ones is that of the frequencies: "Sendefrequenz",
/// "Downlink MHz".
LikelyTitle LikelyFrequency(std::string_view title)
{
    constexpr std::array<std::string_view, 3> kWords = {"freq", "frecuen", "周波数"};
    if (ReadTitle(title))
        return {};
    std::string words = FoldedWords(title);
    const bool isNamed = std::ranges::any_of(
        kWords, [&words](std::string_view word) { return words.find(word) != std::string::npos; });
    const Unit unit = TakeUnit(words);
    const int points = unit == Unit::None ? 0 : unit == Unit::Hz ? 1 : unit == Unit::KHz ? 2 : 3;
    return {isNamed ? points + 4 : points, unit};
}

/// Where no title says frequency, the one that most likely means it.
void TakeLikeliest(const std::vector<std::string>& titles, std::vector<ListColumn>& columns)
{
    if (std::ranges::find(columns, int{kFrequency}, &ListColumn::part) != columns.end())
        return;
    const auto points = [](const std::string& title) { return LikelyFrequency(title).points; };
    const auto best = std::ranges::max_element(titles, {}, points);
    if (best == titles.end() || points(*best) == 0)
        return;
    columns[static_cast<std::size_t>(best - titles.begin())] = {kFrequency, LikelyFrequency(*best).unit};
}

bool BeginsWithDigit(const std::string& field)
{
    return !field.empty() && field[0] >= '0' && field[0] <= '9';
}

}  // namespace

std::optional<ListColumn> ReadTitle(std::string_view title)
{
    std::string words = FoldedWords(title);
    const Unit unit = TakeUnit(words);
    if (words.empty())
        return unit == Unit::None ? std::nullopt : std::optional(ListColumn{kFrequency, unit});
    const auto part = PartCalled(words);
    return part ? std::optional(ListColumn{*part, unit}) : std::nullopt;
}

bool AreTitles(const std::vector<std::string>& fields)
{
    std::size_t texts = 0;
    std::size_t titles = 0;
    bool hasFrequency = false;
    // Words of any kind are titles only where nothing looks like a value.
    const bool mayGuess = std::ranges::none_of(fields, BeginsWithDigit);
    for (const std::string& field : fields) {
        const auto title = ReadTitle(field);
        texts += field.empty() ? 0 : 1;
        titles += title || (mayGuess && LikelyFrequency(field).points > 0) ? 1 : 0;
        hasFrequency = hasFrequency || (title && title->part == kFrequency);
        if (!title && ReadFrequency(field))
            return false;
    }
    return hasFrequency || (titles > 0 && 2 * titles >= texts);
}

std::vector<ListColumn> ColumnsUnder(const std::vector<std::string>& titles)
{
    std::vector<ListColumn> columns;
    for (const std::string& title : titles) {
        ListColumn column = ReadTitle(title).value_or(ListColumn{});
        const bool isTaken = std::ranges::find(columns, column.part, &ListColumn::part) != columns.end();
        columns.push_back(isTaken ? ListColumn{} : column);
    }
    TakeLikeliest(titles, columns);
    return columns;
}

}  // namespace rqm5
