// The keyword tables of the chart language, each with its words in
// lower case and the value text each stands for.
#include "script/vxConstants.h"

namespace Velarix {

namespace {

constexpr vxConstantWord k1000[] = {{L"off", L"0"}, {L"on", L"1"}};
constexpr vxConstantWord k1001[] = {{L"absolute", L"1"}, {L"relative", L"2"}};
constexpr vxConstantWord k1002[] = {{L"rad", L"1"}, {L"deg", L"2"}, {L"grad", L"3"}};
constexpr vxConstantWord k1003[] = {{L"e", L"2.7182818284590452"}, {L"pi", L"3.1415926535897932"}};
constexpr vxConstantWord k1100[] = {{L"straight", L"0"}, {L"pike", L"1"},       {L"skewup", L"2"},
                                    {L"skewdown", L"3"}, {L"notch", L"4"},      {L"round", L"5"},
                                    {L"roundup", L"6"},  {L"rounddown", L"7"},  {L"beakup", L"8"},
                                    {L"beakdown", L"9"}, {L"roundnotch", L"10"}};
constexpr vxConstantWord k1101[] = {{L"rect", L"0"},     {L"oval", L"1"},    {L"plate", L"2"},
                                    {L"triangle", L"3"}, {L"diamond", L"4"}, {L"pentagon", L"5"},
                                    {L"hexagon", L"6"}};
constexpr vxConstantWord k1103[] = {{L"transparent", L"1"},
                                    {L"black", L"2"},
                                    {L"darkgray", L"6"},
                                    {L"gray", L"7"},
                                    {L"lightgray", L"8"}};
constexpr vxConstantWord k1104[] = {{L"none", L"0"},
                                    {L"cross", L"1"},
                                    {L"bullet", L"2"},
                                    {L"square", L"3"},
                                    {L"diamond", L"4"},
                                    {L"downtriangle", L"5"},
                                    {L"uptriangle", L"6"},
                                    {L"plus", L"7"},
                                    {L"circle", L"8"},
                                    {L"hollowsquare", L"9"},
                                    {L"hollowdiamond", L"10"},
                                    {L"hollowdowntriangle", L"11"},
                                    {L"hollowuptriangle", L"12"},
                                    {L"hbar", L"13"},
                                    {L"vbar", L"14"},
                                    {L"leftbar", L"15"},
                                    {L"rightbar", L"16"},
                                    {L"topbar", L"17"},
                                    {L"bottombar", L"18"}};
constexpr vxConstantWord k1105[] = {
    {L"plain", L"0"}, {L"bold", L"1"}, {L"italic", L"2"}, {L"underline", L"4"}};
constexpr vxConstantWord k1106[] = {
    {L"none", L"0"}, {L"jump", L"1"}, {L"step", L"2"}, {L"poly", L"3"}, {L"smooth", L"4"}};
constexpr vxConstantWord k1107[] = {{L"none", L"0"}, {L"begin", L"1"}, {L"end", L"2"}};
constexpr vxConstantWord k1200[] = {{L"left", L"1"}, {L"center", L"2"}, {L"right", L"3"}};
constexpr vxConstantWord k1201[] = {{L"top", L"1"}, {L"center", L"2"}, {L"bottom", L"3"}};
constexpr vxConstantWord k1202[] = {
    {L"top", L"1"}, {L"center", L"2"}, {L"bottom", L"3"}, {L"baseline", L"4"}};
constexpr vxConstantWord k1203[] = {
    {L"automatic", L"0"},    {L"topleft", L"1"},      {L"topcenter", L"2"},   {L"topright", L"3"},
    {L"centerleft", L"4"},   {L"centercenter", L"5"}, {L"centerright", L"6"}, {L"bottomleft", L"7"},
    {L"bottomcenter", L"8"}, {L"bottomright", L"9"}};
constexpr vxConstantWord k1204[] = {{L"automatic", L"0"},
                                    {L"topleft", L"1"},
                                    {L"topcenter", L"2"},
                                    {L"topright", L"3"},
                                    {L"centerleft", L"4"},
                                    {L"centercenter", L"5"},
                                    {L"centerright", L"6"},
                                    {L"bottomleft", L"7"},
                                    {L"bottomcenter", L"8"},
                                    {L"bottomright", L"9"},
                                    {L"smartbegin", L"1"},
                                    {L"smartcenter", L"2"},
                                    {L"smartend", L"3"},
                                    {L"begin", L"4"},
                                    {L"center", L"5"},
                                    {L"end", L"6"},
                                    {L"edge", L"7"},
                                    {L"smartout", L"8"},
                                    {L"out", L"9"},
                                    {L"totalsout", L"1"},
                                    {L"totalsedge", L"2"},
                                    {L"runningtotalsout", L"3"},
                                    {L"runningtotalsedge", L"4"}};
constexpr vxConstantWord k1300[] = {{L"none", L"-1.0"}};
constexpr vxConstantWord k1301[] = {{L"none", L"-1.0"}};
constexpr vxConstantWord k1302[] = {
    {L"none", L"0"}, {L"begin", L"1"}, {L"center", L"2"}, {L"end", L"3"}, {L"beginandend", L"4"}};
constexpr vxConstantWord k1400[] = {{L"all", L"0"}, {L"xy", L"1"}, {L"xz", L"2"}, {L"yz", L"3"}};
constexpr vxConstantWord k1401[] = {
    {L"none", L"0"}, {L"all", L"-1"}, {L"max", L"-2"}, {L"min", L"-3"}};
constexpr vxConstantWord k1402[] = {{L"areaprop", L"1"}, {L"diameterprop", L"2"}};
constexpr vxConstantWord k1403[] = {
    {L"highlow", L"1"}, {L"highlowclose", L"2"}, {L"highlowcloseopen", L"3"}};
constexpr vxConstantWord k1404[] = {
    {L"none", L"0"}, {L"frequency", L"1"}, {L"ogive", L"2"}, {L"reverseogive", L"3"}};
constexpr vxConstantWord k1500[] = {
    {L"default", L"0"},    {L"shadow", L"1"},   {L"label", L"2"},        {L"symbol", L"4"},
    {L"horizontal", L"8"}, {L"stacked", L"16"}, {L"proportional", L"32"}};
constexpr vxConstantWord k1501[] = {
    {L"default", L"0"},    {L"shadow", L"1"},   {L"label", L"2"},        {L"symbol", L"4"},
    {L"horizontal", L"8"}, {L"stacked", L"16"}, {L"proportional", L"32"}};
constexpr vxConstantWord k1510[] = {
    {L"default", L"0"}, {L"shadow", L"1"}, {L"label", L"2"}, {L"horizontal", L"8"}};
constexpr vxConstantWord k1520[] = {
    {L"default", L"0"},    {L"shadow", L"1"},   {L"label", L"2"},        {L"symbol", L"4"},
    {L"horizontal", L"8"}, {L"stacked", L"16"}, {L"proportional", L"32"}};
constexpr vxConstantWord k1521[] = {
    {L"default", L"0"}, {L"shadow", L"1"}, {L"label", L"2"}, {L"symbol", L"4"}};
constexpr vxConstantWord k1530[] = {{L"default", L"0"},  {L"shadow", L"1"},
                                    {L"label", L"2"},    {L"horizontal", L"8"},
                                    {L"stacked", L"16"}, {L"proportional", L"32"}};
constexpr vxConstantWord k1531[] = {{L"default", L"0"}, {L"shadow", L"1"}, {L"label", L"2"}};
constexpr vxConstantWord k1540[] = {
    {L"default", L"0"},    {L"shadow", L"1"},   {L"label", L"2"},        {L"symbol", L"4"},
    {L"horizontal", L"8"}, {L"stacked", L"16"}, {L"proportional", L"32"}};
constexpr vxConstantWord k1541[] = {
    {L"default", L"0"}, {L"shadow", L"1"}, {L"label", L"2"}, {L"symbol", L"4"}};
constexpr vxConstantWord k1550[] = {
    {L"default", L"0"}, {L"shadow", L"1"}, {L"label", L"2"}, {L"oval", L"64"}};
constexpr vxConstantWord k1560[] = {
    {L"default", L"0"}, {L"shadow", L"1"}, {L"label", L"2"}, {L"symbol", L"4"}, {L"oval", L"64"}};
constexpr vxConstantWord k1570[] = {
    {L"default", L"0"}, {L"shadow", L"1"}, {L"label", L"2"}, {L"symbol", L"4"}, {L"oval", L"64"}};
constexpr vxConstantWord k1580[] = {
    {L"default", L"0"},    {L"shadow", L"1"},   {L"label", L"2"},        {L"symbol", L"4"},
    {L"horizontal", L"8"}, {L"stacked", L"16"}, {L"proportional", L"32"}};
constexpr vxConstantWord k1581[] = {
    {L"default", L"0"}, {L"shadow", L"1"}, {L"label", L"2"}, {L"symbol", L"4"}};
constexpr vxConstantWord k1590[] = {{L"default", L"0"},
                                    {L"shadow", L"1"},
                                    {L"label", L"2"},
                                    {L"symbol", L"4"},
                                    {L"horizontal", L"8"}};
constexpr vxConstantWord k1591[] = {{L"default", L"0"},
                                    {L"shadow", L"1"},
                                    {L"label", L"2"},
                                    {L"symbol", L"4"},
                                    {L"horizontal", L"8"}};
constexpr vxConstantWord k1600[] = {{L"default", L"0"}, {L"shadow", L"1"}, {L"horizontal", L"8"}};
constexpr vxConstantWord k1601[] = {{L"default", L"0"}, {L"shadow", L"1"}, {L"horizontal", L"8"}};
constexpr vxConstantWord k1610[] = {{L"default", L"0"}, {L"shadow", L"1"},     {L"label", L"2"},
                                    {L"symbol", L"4"},  {L"horizontal", L"8"}, {L"stacked", L"16"}};
constexpr vxConstantWord k1620[] = {
    {L"default", L"0"}, {L"shadow", L"1"}, {L"symbol", L"4"}, {L"horizontal", L"8"}};
constexpr vxConstantWord k1700[] = {{L"stacked", L"-1"}, {L"all", L"0"}};
constexpr vxConstantWord k1701[] = {
    {L"raw", L"0"}, {L"reverse", L"1"}, {L"sort", L"2"}, {L"unique", L"4"}};
constexpr vxConstantWord k1702[] = {{L"xxyy", L"1"}, {L"xyxy", L"2"}};
constexpr vxConstantWord k1703[] = {{L"ymd", L"1"}, {L"mdy", L"2"}, {L"dmy", L"3"}};
constexpr vxConstantWord k1800[] = {{L"all", L"0"}, {L"x", L"1"}, {L"y", L"2"}, {L"z", L"3"}};
constexpr vxConstantWord k1801[] = {{L"none", L"0"}, {L"back", L"1"}, {L"front", L"2"}};
constexpr vxConstantWord k1802[] = {{L"in", L"1"}, {L"center", L"2"}, {L"out", L"3"}};
constexpr vxConstantWord k1803[] = {{L"linear", L"1"}, {L"percent", L"2"}, {L"log", L"3"},
                                    {L"power", L"4"},  {L"prob", L"5"},    {L"1/x", L"6"}};
constexpr vxConstantWord k1804[] = {
    {L"year", L"-1"},      {L"quarter", L"-2"},   {L"month", L"-3"},     {L"week", L"-4"},
    {L"day", L"-5"},       {L"hour", L"-6"},      {L"minute30", L"-7"},  {L"minute20", L"-8"},
    {L"minute15", L"-9"},  {L"minute10", L"-10"}, {L"minute5", L"-11"},  {L"minute", L"-12"},
    {L"second30", L"-13"}, {L"second20", L"-14"}, {L"second15", L"-15"}, {L"second10", L"-16"},
    {L"second5", L"-17"},  {L"second", L"-18"}};
constexpr vxConstantWord k1900[] = {
    {L"none", L"0"}, {L"rect", L"1"}, {L"poly", L"2"}, {L"oval", L"3"}};
constexpr vxConstantWord k1901[] = {
    {L"none", L"0"}, {L"back", L"1"}, {L"front", L"2"}, {L"partial", L"3"}};
constexpr vxConstantWord k2000[] = {{L"automatic", L"0"}, {L"rect", L"1"}, {L"symbol", L"2"},
                                    {L"line", L"4"},      {L"oval", L"8"}, {L"diamond", L"16"}};
constexpr vxConstantWord k2100[] = {{L"crop", L"1"},
                                    {L"reduce", L"2"},
                                    {L"enlarge", L"3"},
                                    {L"reduceorenlarge", L"4"},
                                    {L"tile", L"5"}};
constexpr vxConstantWord k2101[] = {{L"clipboard", L"1"}, {L"resource", L"2"}, {L"file", L"3"}};
constexpr vxConstantWord k2102[] = {
    {L"min", L"1"}, {L"low", L"2"}, {L"normal", L"3"}, {L"high", L"4"}, {L"max", L"5"}};
constexpr vxConstantWord k2200[] = {
    {L"addcounter", L"1"}, {L"replace", L"2"}, {L"throwerror", L"3"}};
constexpr vxConstantWord k2300[] = {{L"none", L"0"},    {L"stderror", L"1"}, {L"stddev", L"2"},
                                    {L"percent", L"3"}, {L"constant", L"4"}, {L"valuelist", L"5"}};
constexpr vxConstantWord k2301[] = {
    {L"none", L"0"}, {L"plus", L"1"}, {L"minus", L"2"}, {L"both", L"3"}};
constexpr vxConstantWord k2302[] = {{L"none", L"0"}, {L"rect", L"1"}, {L"oval", L"2"}};
constexpr vxConstantWord k2400[] = {
    {L"none", L"0"}, {L"average", L"1"}, {L"median", L"2"}, {L"exponential", L"3"}};
constexpr vxConstantWord k2401[] = {{L"backward", L"1"},
                                    {L"forward", L"2"},
                                    {L"centeredbackward", L"3"},
                                    {L"centeredforward", L"4"}};
constexpr vxConstantWord k2500[] = {
    {L"log", L"-4"}, {L"exp", L"-3"}, {L"pow", L"-2"}, {L"none", L"0"}, {L"linear", L"1"}};
constexpr vxConstantWord k2600[] = {{L"sect", L"1"}, {L"diff", L"2"}, {L"union", L"3"}};

// In ascending order of the table numbers.
constexpr vxConstantTable kTables[] = {
    {1000, k1000}, {1001, k1001}, {1002, k1002}, {1003, k1003}, {1100, k1100}, {1101, k1101},
    {1103, k1103}, {1104, k1104}, {1105, k1105}, {1106, k1106}, {1107, k1107}, {1200, k1200},
    {1201, k1201}, {1202, k1202}, {1203, k1203}, {1204, k1204}, {1300, k1300}, {1301, k1301},
    {1302, k1302}, {1400, k1400}, {1401, k1401}, {1402, k1402}, {1403, k1403}, {1404, k1404},
    {1500, k1500}, {1501, k1501}, {1510, k1510}, {1520, k1520}, {1521, k1521}, {1530, k1530},
    {1531, k1531}, {1540, k1540}, {1541, k1541}, {1550, k1550}, {1560, k1560}, {1570, k1570},
    {1580, k1580}, {1581, k1581}, {1590, k1590}, {1591, k1591}, {1600, k1600}, {1601, k1601},
    {1610, k1610}, {1620, k1620}, {1700, k1700}, {1701, k1701}, {1702, k1702}, {1703, k1703},
    {1800, k1800}, {1801, k1801}, {1802, k1802}, {1803, k1803}, {1804, k1804}, {1900, k1900},
    {1901, k1901}, {2000, k2000}, {2100, k2100}, {2101, k2101}, {2102, k2102}, {2200, k2200},
    {2300, k2300}, {2301, k2301}, {2302, k2302}, {2400, k2400}, {2401, k2401}, {2500, k2500},
    {2600, k2600},
};

}  // namespace

std::span<const vxConstantTable> vxKeywordTables() {
    return kTables;
}

}  // namespace Velarix
