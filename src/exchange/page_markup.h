// What the published page looks like and does in a browser. The program's size counts, and so does
// that of the pages: these parts are short.
#pragma once

#include <string_view>

namespace scorvane {

inline constexpr std::string_view kPageStyle =
    ":root{color-scheme:light dark;font:1rem/1.45 system-ui,sans-serif}"
    "body{max-width:60rem;margin:auto;padding:1rem;overflow-wrap:anywhere}"
    "h1,h2,h3{line-height:1.2}"
    "h2{border-bottom:2px solid;margin-top:2.5rem}"
    "nav ul{display:flex;flex-wrap:wrap;gap:.2rem 1.2rem;padding:0;list-style:none}"
    "nav a{display:block;padding:.4rem 0}"
    "table{width:100%;border-collapse:collapse;margin-bottom:1.5rem}"
    "caption{text-align:left;padding:.2rem 0}"
    "th,td{text-align:left;vertical-align:top;padding:.25rem .4rem;"
    "border-bottom:1px solid #8888}"
    "thead,.s,#cards td{overflow-wrap:normal}"
    "tbody th,.t td{font-weight:600}"
    "td:first-child,.s{text-align:right;width:3.2rem}"
    "small{display:block;font-weight:400;font-size:.85rem}"
    "td ul{margin:0;padding:0;list-style:none}"
    "#cards td,#cards thead th+th{text-align:right;width:auto}"
    "summary{padding:.5rem 0;cursor:pointer}"
    "summary h3{display:inline;font-size:1rem}"
    "summary:focus-visible,input:focus-visible,a:focus-visible{outline:3px solid #4a90d9}"
    ".g{display:grid;grid-template-columns:repeat(auto-fill,minmax(16rem,1fr));gap:0 2rem}"
    "svg{width:100%;max-width:24rem}"
    "path{fill:#37c}"
    "text{font-size:9px;text-anchor:middle;fill:currentColor}"
    "input{font:inherit;width:100%;max-width:24rem;box-sizing:border-box;padding:.5rem}"
    "output{display:block;min-height:1.5rem}"
    "@media(max-width:30rem){body{padding:.5rem}table{font-size:.9rem}th,td{padding:.25rem .2rem}"
    "tbody "
    "th,td{overflow-wrap:break-word}td:first-child,.s{width:2.6rem}section{overflow-x:auto;padding:"
    "3px}"
    "#cards table{font-size:.75rem}#cards thead{font-size:.7rem}}"
    "@media print{:root{color-scheme:light;font-size:10pt}body{max-width:none;padding:0}"
    "nav,#search{display:none}tr,article,details{break-inside:avoid}h2,h3{break-after:avoid}}";

// Without it every card is open and there is no search field. A search is by words of number, name
// and team, capitals and accents aside; the only card found, or with Enter the first, opens.
inline constexpr std::string_view kPageScript =
    "(()=>{const $=i=>document.getElementById(i),f=$('find'),"
    "c=[...document.querySelectorAll('details')],"
    "n=s=>s.normalize('NFD').replace(/[\\u0300-\\u036f]/g,'').toLowerCase(),"
    "t=c.map(d=>n(d.firstElementChild.textContent)),"
    "go=()=>{const w=n(f.value).split(/\\s+/).filter(x=>x),"
    "h=c.filter((d,i)=>!(d.hidden=!w.every(x=>t[i].includes(x))));"
    "c.forEach(d=>d.open=w.length&&h.length==1&&!d.hidden);"
    "$('found').textContent=w.length?h.length+' of '+c.length+' contestants':'';return "
    "w.length&&h[0]};"
    "$('search').hidden=false;go();"
    "f.addEventListener('input',go);"
    "f.addEventListener('keydown',e=>{if(e.key=='Enter'){e.preventDefault();const d=go();"
    "if(d){d.open=true;d.firstElementChild.focus();d.scrollIntoView()}}});"
    "addEventListener('beforeprint',()=>c.forEach(d=>{d.was=d.open;d.open=true}));"
    "addEventListener('afterprint',()=>c.forEach(d=>d.open=d.was))})()";

// What the browser may apply and run: these very texts and nothing that a name could smuggle in.
inline constexpr std::string_view kPageStyleHash =
    "sha256-fc1c6LUUfGAoTLmvOWq++VVl1TwbJnGxfYuiTdL5OTo=";
inline constexpr std::string_view kPageScriptHash =
    "sha256-y5+/hdT+elnB3rx9VE9CMg8S/hfHrBODiM7McV2W9NM=";

}  // namespace scorvane
