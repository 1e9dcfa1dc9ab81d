'use strict';

const byId = (id) => document.getElementById(id);
const kit = JSON.parse(byId('kit').textContent);
const areas = kit.areas.map(([paint, mm2, rings]) => ({ paint, mm2, rings, labels: [], marks: [] }));
const paints = kit.paints.map((paint) => ({ ...paint, areas: [], mm2: 0 }));
const wholeMm2 = areas.reduce((sum, area) => sum + area.mm2, 0);
const done = new Uint8Array(areas.length);
const undoable = [];  // what was ticked last, and whether on or off
let chosen = -1;      // paint
let picked = -1;      // area
let ticking = false;

const counted = (number) => number.toLocaleString('en-US');
const press = (id, on) => byId(id).setAttribute('aria-pressed', on);
const svgOf = (content, box) => `<svg viewBox="${box}" aria-hidden="true">${content}</svg>`;

// ---- Drawing

// A border's path data, "M1 2h3v4l5 6z", as corners from its beginning to its end.
function cornersOf(path) {
  const corners = [];
  let x = 0, y = 0, command = '';
  const tokens = path.match(/[a-zM]|-?\d+/g);
  for (let i = 0; i < tokens.length; i++) {
    if (/[a-zM]/.test(tokens[i])) {
      command = tokens[i];
      if (command === 'z') corners.push(corners[0]);
      continue;
    }
    const step = Number(tokens[i]);
    if (command === 'M') { x = step; y = Number(tokens[++i]); }
    else if (command === 'h') x += step;
    else if (command === 'v') y += step;
    else { x += step; y += Number(tokens[++i]); }
    corners.push([x, y]);
  }
  return corners;
}

function areaPath(area, chains) {
  let path = '';
  for (const ring of area.rings) {
    const corners = [];
    for (const way of ring) {
      const chain = chains[Math.abs(way) - 1];
      corners.push(...(way > 0 ? chain : chain.slice().reverse()).slice(1));
    }
    path += 'M' + corners.join(' ') + 'z';
  }
  return path;
}

// Black or white, whichever is told apart on a color.
function inkOn(color) {
  const [red, green, blue] = [1, 3, 5].map((at) => parseInt(color.slice(at, at + 2), 16));
  return red * 0.3 + green * 0.59 + blue * 0.11 > 140 ? '#000' : '#fff';
}

function layer(kind, contents) {
  return `<g class="${kind}">` + contents.map((content, paint) =>
    `<g id="${kind}-${paint}" style="--paint:${paints[paint].color};--ink:${inkOn(paints[paint].color)}">${content}</g>`)
    .join('') + '</g>';
}

function symbolOf([area, x, y, height, fromX, fromY, toX, toY]) {
  areas[area].labels.push([x, y]);
  const half = height / 2;
  const leader = toX === undefined ? '' :
    `<path class="leader" d="M${fromX} ${fromY}L${toX} ${toY}"/><circle cx="${toX}" cy="${toY}" r="${height / 8}"/>`;
  return `<g><use href="#glyph-${areas[area].paint}" x="${x - height}" y="${y - half}"` +
    ` width="${2 * height}" height="${height}"/>${leader}</g>`;
}

// Symbols stand in their layers by paint, and there in the order of the kit's list.
function indexMarks() {
  const marks = paints.map((paint, i) => [...byId(`symbols-${i}`).children].reverse());
  for (const [area] of kit.labels) areas[area].marks.push(marks[areas[area].paint].pop());
}

function drawPlan() {
  const chains = kit.chains.map(cornersOf);
  const glyphs = paints.map((paint, i) =>
    `<symbol id="glyph-${i}" viewBox="-1000 -500 2000 1000"><path d="${paint.glyph}"/></symbol>`);
  const filled = paints.map(() => '');
  const symbols = paints.map(() => '');
  areas.forEach((area, i) => {
    filled[area.paint] += `<path id="a${i}" d="${areaPath(area, chains)}"/>`;
    paints[area.paint].areas.push(i);
    paints[area.paint].mm2 += area.mm2;
  });
  kit.labels.forEach((label) => { symbols[areas[label[0]].paint] += symbolOf(label); });
  byId('plan').innerHTML = '<svg aria-hidden="true">' +
    `<defs>${glyphs.join('')}</defs><rect class="paper" width="${kit.width}" height="${kit.height}"/>` +
    layer('areas', filled) + `<path class="lines" d="${kit.chains.join('')}"/>` +
    layer('symbols', symbols) + '<path id="picked"/></svg>';
  indexMarks();
}

// ---- The part of the plan that is seen

const plan = byId('plan');
const beyond = 0.2;  // of the width and the height: drawn on each side for what is moved in
const largest = 4;   // screen pixels per unit
const heights = kit.labels.map((label) => label[3]).sort((one, other) => one - other);
const view = { x: kit.width / 2, y: kit.height / 2, scale: 0 };  // middle; screen pixels per unit
let drawn = null;  // the same, as it was drawn last
let fit = 0;
let asked = false;
let settling = 0;

function show() {
  if (!fit) return;
  view.scale = Math.min(Math.max(view.scale, fit), largest);
  const keep = (at, size, room) => {
    const half = room / view.scale / 2;
    return half * 2 > size ? size / 2 : Math.min(Math.max(at, half), size - half);
  };
  view.x = keep(view.x, kit.width, plan.clientWidth);
  view.y = keep(view.y, kit.height, plan.clientHeight);
  if (!asked) requestAnimationFrame(place);
  asked = true;
}

// Thousands of areas take a while to draw, so what is drawn is moved as long as it covers the
// screen, and drawn sharply when the fingers rest.
function place() {
  asked = false;
  clearTimeout(settling);
  const { clientWidth: width, clientHeight: height } = plan;
  const times = drawn ? view.scale / drawn.scale : 0;
  const right = drawn ? (drawn.x - view.x) * view.scale : 0;
  const down = drawn ? (drawn.y - view.y) * view.scale : 0;
  const covers = (way, room) => (0.5 + beyond) * room * times - Math.abs(way) >= room / 2;
  if (times > 3 || !covers(right, width) || !covers(down, height)) {
    settle();
    return;
  }
  plan.firstElementChild.style.transform = `translate(${right}px, ${down}px) scale(${times})`;
  settling = setTimeout(settle, 150);
}

function settle() {
  drawn = { ...view };
  const svg = plan.firstElementChild;
  const [across, down] = [plan.clientWidth, plan.clientHeight].map((room) => room * (1 + 2 * beyond) / view.scale);
  svg.setAttribute('viewBox', `${view.x - across / 2} ${view.y - down / 2} ${across} ${down}`);
  svg.style.transform = '';
  svg.style.setProperty('--line', Math.min(1.2, Math.max(0.45, view.scale * 3)));
  plan.classList.toggle('far', heights[heights.length >> 1] * view.scale < 4);
}

function showWhole() {
  view.scale = fit;
  show();
}

function measure() {
  if (!plan.clientWidth || !plan.clientHeight) return;
  const whole = view.scale <= fit;
  drawn = null;
  fit = Math.min(plan.clientWidth / kit.width, plan.clientHeight / kit.height) * 0.98;
  if (whole) view.scale = fit;
  show();
}

// Zooms and leaves what is at a place of the screen there.
function zoom(times, at) {
  const box = plan.getBoundingClientRect();
  const right = (at ? at.x - box.left : box.width / 2) - box.width / 2;
  const down = (at ? at.y - box.top : box.height / 2) - box.height / 2;
  const scale = Math.min(Math.max(view.scale * times, fit), largest);
  view.x += right / view.scale - right / scale;
  view.y += down / view.scale - down / scale;
  view.scale = scale;
  show();
}

function move(right, down) {
  view.x -= right / view.scale;
  view.y -= down / view.scale;
  show();
}

// Brings an area into view, large enough to be seen.
function goTo(area) {
  const box = byId('a' + area).getBBox();
  const room = Math.min(plan.clientWidth / box.width, plan.clientHeight / box.height);
  view.x = box.x + box.width / 2;
  view.y = box.y + box.height / 2;
  view.scale = Math.max(view.scale, Math.min(room / 4, 1));
  show();
}

// ---- Fingers, mouse and keys

const touches = new Map();
let moved = false;

const middle = () => {
  const all = [...touches.values()];
  const x = all.reduce((sum, at) => sum + at.x, 0) / all.length;
  const y = all.reduce((sum, at) => sum + at.y, 0) / all.length;
  return { x, y, spread: all.length > 1 ? Math.hypot(all[0].x - x, all[0].y - y) : 0 };
};

plan.addEventListener('pointerdown', (event) => {
  if (touches.size === 0) moved = false;
  touches.set(event.pointerId, { x: event.clientX, y: event.clientY, began: [event.clientX, event.clientY] });
  if (touches.size > 1) moved = true;
  plan.setPointerCapture(event.pointerId);
});

plan.addEventListener('pointermove', (event) => {
  const touch = touches.get(event.pointerId);
  if (!touch) return;
  const before = middle();
  touch.x = event.clientX;
  touch.y = event.clientY;
  moved ||= Math.hypot(touch.x - touch.began[0], touch.y - touch.began[1]) > 8;
  if (!moved) return;
  const now = middle();
  move(now.x - before.x, now.y - before.y);
  if (before.spread > 0 && now.spread > 0) zoom(now.spread / before.spread, now);
});

for (const end of ['pointerup', 'pointercancel']) {
  plan.addEventListener(end, (event) => {
    const known = touches.delete(event.pointerId);
    if (known && end === 'pointerup' && !moved && touches.size === 0) tap(event.clientX, event.clientY);
  });
}

plan.addEventListener('wheel', (event) => {
  event.preventDefault();
  const lines = event.deltaMode === 1 ? 30 : 1;
  zoom(Math.exp(-event.deltaY * lines * (event.ctrlKey ? 0.01 : 0.002)), { x: event.clientX, y: event.clientY });
}, { passive: false });

plan.addEventListener('keydown', (event) => {
  const step = 80;
  const keys = {
    ArrowLeft: () => move(step, 0), ArrowRight: () => move(-step, 0),
    ArrowUp: () => move(0, step), ArrowDown: () => move(0, -step),
    '+': () => zoom(1.3), '=': () => zoom(1.3), '-': () => zoom(1 / 1.3), 0: showWhole,
  };
  if (keys[event.key] && !event.ctrlKey && !event.metaKey) {
    event.preventDefault();
    keys[event.key]();
  }
});

function areaAt(x, y) {
  const id = document.elementFromPoint(x, y)?.id ?? '';
  return /^a\d+$/.test(id) ? Number(id.slice(1)) : -1;
}

// Of the chosen paint, even when the finger is a little beside it.
function chosenAreaNear(x, y) {
  for (const reach of [0, 7, 14, 20]) {
    for (let turn = 0; turn < (reach ? 12 : 1); turn++) {
      const angle = turn * Math.PI / 6;
      const area = areaAt(x + reach * Math.cos(angle), y + reach * Math.sin(angle));
      if (area >= 0 && (chosen < 0 || areas[area].paint === chosen)) return area;
    }
  }
  return -1;
}

function tap(x, y) {
  const near = ticking ? chosenAreaNear(x, y) : -1;
  const area = near >= 0 ? near : areaAt(x, y);
  if (near >= 0) tick([near], !done[near]);
  if (ticking && near < 0 && area >= 0) {
    const other = paints[areas[area].paint];
    notify(`That is ${other.symbol} ${other.name}.`);
    return;
  }
  choose(area < 0 ? -1 : ticking && chosen < 0 ? -1 : areas[area].paint, area);
}

// ---- What is chosen and what is painted

function choose(paint, area) {
  for (const kind of ['areas', 'symbols']) {
    if (chosen >= 0) byId(`${kind}-${chosen}`).classList.remove('lit');
    if (paint >= 0) byId(`${kind}-${paint}`).classList.add('lit');
  }
  const other = paint !== chosen;
  chosen = paint;
  picked = area;
  plan.classList.toggle('choosing', chosen >= 0);
  byId('picked').setAttribute('d', picked < 0 ? '' : byId('a' + picked).getAttribute('d'));
  if (other) {
    listAreas();
    if (chosen >= 0) byId('paint-' + chosen).scrollIntoView({ block: 'nearest', inline: 'nearest' });
  }
  showState();
}

function tick(which, on, undoing) {
  const changed = which.filter((area) => Boolean(done[area]) !== on);
  for (const area of changed) {
    done[area] = on ? 1 : 0;
    markArea(area);
  }
  if (!undoing && changed.length) undoable.push([changed, on]);
  keep();
  showState();
}

function markArea(area) {
  const on = Boolean(done[area]);
  byId('a' + area).classList.toggle('done', on);
  for (const mark of areas[area].marks) mark.classList.toggle('done', on);
  const box = byId('tick-' + area);
  if (box) box.checked = on;
}

const doneOf = (paint) => paint.areas.reduce((sum, area) => sum + done[area], 0);

function progressText() {
  const count = done.reduce((sum, one) => sum + one, 0);
  const mm2 = areas.reduce((sum, area, i) => sum + (done[i] ? area.mm2 : 0), 0);
  const share = count === areas.length ? 100 : Math.min(99.9, 100 * mm2 / wholeMm2);
  return { count, share, text: `${counted(count)} of ${counted(areas.length)} areas, ${share.toFixed(1)} %` };
}

function showState() {
  const { share, text } = progressText();
  byId('progress').textContent = text;
  byId('bar').setAttribute('aria-valuenow', share.toFixed(1));
  byId('bar').setAttribute('aria-valuetext', text);
  byId('bar').firstElementChild.style.width = share + '%';
  byId('undo').disabled = undoable.length === 0;
  for (const [i, paint] of paints.entries()) showPaint(i, paint);
  showCard();
}

function showPaint(i, paint) {
  const row = byId('paint-' + i);
  if (!row) return;
  const count = doneOf(paint);
  const all = count === paint.areas.length;
  row.setAttribute('aria-pressed', i === chosen);
  row.setAttribute('aria-label', `${paint.symbol} ${paint.name}, ${count} of ${paint.areas.length} areas painted`);
  row.classList.toggle('done', all);
  row.querySelector('.left').textContent = all ? 'done' : `${counted(count)} / ${counted(paint.areas.length)}`;
  row.querySelector('i').style.width = 100 * count / paint.areas.length + '%';
}

const chip = (paint) =>
  `<span class="chip" style="background:${paint.color};color:${inkOn(paint.color)}">` +
  svgOf(`<path d="${paint.glyph}"/>`, '-640 -640 1280 1280') + '</span>';

const sizeText = (mm2) => mm2 < 100 ? `${mm2.toFixed(0)} mm²` : `${(mm2 / 100).toFixed(1)} cm²`;

function showCard() {
  byId('let-go').hidden = chosen < 0;
  byId('tick-area').hidden = picked < 0;
  if (chosen < 0) {
    byId('card-chip').innerHTML = '';
    byId('card-text').textContent = 'Tap an area or a paint.';
    return;
  }
  const paint = paints[chosen];
  const count = doneOf(paint);
  const left = paint.areas.length - count;
  byId('card-chip').innerHTML = chip(paint);
  const name = document.createElement('b');
  name.textContent = `${paint.symbol}  ${paint.name}`;
  const facts = [
    [picked < 0 ? '' : sizeText(areas[picked].mm2),
      left ? `${counted(left)} of ${counted(paint.areas.length)} to paint` : 'all painted'],
    [paint.set, paint.code],
  ].map((parts) => {
    const line = document.createElement('small');
    line.textContent = parts.filter(Boolean).join(' · ');
    return line;
  });
  byId('card-text').replaceChildren(name, ...facts);
  press('tick-paint', left === 0);
  if (picked >= 0) press('tick-area', Boolean(done[picked]));
}

function listPaints() {
  for (const [i, paint] of paints.entries()) {
    if (!paint.areas.length) continue;
    const row = document.createElement('button');
    row.id = 'paint-' + i;
    row.className = 'paint';
    row.innerHTML = chip(paint) + '<span class="name"></span><span class="left"></span><span class="bar"><i></i></span>';
    row.querySelector('.name').textContent = paint.name;
    row.title = [paint.name, paint.set, paint.code].filter(Boolean).join(', ');
    row.addEventListener('click', () => choose(i === chosen ? -1 : i, -1));
    const item = document.createElement('li');
    item.append(row);
    byId('paints').append(item);
  }
}

function whereOf(area) {
  const [x, y] = areas[area].labels[0] ?? [0, 0];
  const third = (at, size, names) => names[Math.min(2, Math.floor(3 * at / size))];
  const row = third(y, kit.height, ['top', 'middle', 'bottom']);
  const column = third(x, kit.width, ['left', 'center', 'right']);
  return row === 'middle' && column === 'center' ? 'center' : `${row} ${column}`;
}

function listAreas() {
  byId('areas').hidden = chosen < 0;
  byId('area-list').replaceChildren();
  if (chosen < 0) return;
  const largestFirst = [...paints[chosen].areas].sort((one, other) => areas[other].mm2 - areas[one].mm2);
  for (const area of largestFirst) {
    const item = document.createElement('li');
    const label = document.createElement('label');
    const box = document.createElement('input');
    box.type = 'checkbox';
    box.id = 'tick-' + area;
    box.checked = Boolean(done[area]);
    box.addEventListener('change', () => tick([area], box.checked));
    label.append(box, ` ${sizeText(areas[area].mm2)}, ${whereOf(area)}`);
    const find = document.createElement('button');
    find.textContent = 'Show';
    find.setAttribute('aria-label', `Show the area of ${sizeText(areas[area].mm2)}, ${whereOf(area)}`);
    find.addEventListener('click', () => { choose(chosen, area); goTo(area); });
    item.append(label, find);
    byId('area-list').append(item);
  }
}

// ---- Keeping it

const keptAs = 'vendrel ' + kit.mark;
let keeps = true;

function stored(key, value) {
  try {
    if (value !== undefined) localStorage.setItem(key, value);
    return localStorage.getItem(key);
  } catch {
    keeps = false;
    return null;
  }
}

const doneAreas = () => areas.flatMap((area, i) => done[i] ? [i + 1] : []);

function keep() {
  stored(keptAs, JSON.stringify(doneAreas()));
  byId('kept').textContent = keeps
    ? 'What you tick is kept on this device. Save it to a file now and then: browsers forget.'
    : 'This browser keeps nothing for pages like this one. Save your progress to a file.';
}

function takeUp(numbers) {
  const wanted = new Set(Array.isArray(numbers) ? numbers : []);
  areas.forEach((area, i) => {
    if (Boolean(done[i]) === wanted.has(i + 1)) return;
    done[i] = wanted.has(i + 1) ? 1 : 0;
    markArea(i);
  });
  undoable.length = 0;
  keep();
  showState();
}

function saveFile() {
  const progress = { kit: kit.mark, title: kit.title, areas: areas.length, done: doneAreas() };
  const link = document.createElement('a');
  link.href = URL.createObjectURL(new Blob([JSON.stringify(progress)], { type: 'application/json' }));
  link.download = `${kit.title.replace(/[^\p{L}\p{N} -]/gu, '')} progress.json`;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 10000);
  notify('Saved among your downloads.');
}

async function loadFile(file) {
  let progress = null;
  try {
    progress = JSON.parse(await file.text());
  } catch { /* said below */ }
  if (!Array.isArray(progress?.done)) {
    notify('That file holds no progress. Choose one that was saved here.');
  } else if (progress.kit !== kit.mark) {
    notify(`That is the progress of another kit (${progress.kit}); this one is ${kit.mark}.`);
  } else {
    takeUp(progress.done);
    notify(`Loaded: ${progressText().text}.`);
  }
}

// ---- Around it

let noticeEnds = 0;
function notify(text) {
  const notice = byId('notice');
  notice.textContent = text;
  notice.classList.add('shown');
  clearTimeout(noticeEnds);
  noticeEnds = setTimeout(() => notice.classList.remove('shown'), 4000);
}

const darkDevice = matchMedia('(prefers-color-scheme: dark)');
let theme = stored('vendrel theme');

function showTheme() {
  const dark = theme ? theme === 'dark' : darkDevice.matches;
  document.documentElement.dataset.theme = dark ? 'dark' : 'light';
  byId('theme').textContent = dark ? 'Light' : 'Dark';
}

let lock = null;
let wanted = true;

async function keepAwake() {
  press('awake', wanted);
  let text = 'The screen may go dark, as your device is set.';
  if (wanted && !('wakeLock' in navigator)) {
    text = 'This browser cannot keep the screen on. Let it stay on longer in your device’s settings.';
  } else if (wanted) {
    try {
      lock ??= await navigator.wakeLock.request('screen');
      lock.addEventListener('release', () => { lock = null; });
      text = 'The screen stays on while this page is open.';
    } catch {
      text = 'The screen does not stay on: the browser refused, perhaps to save the battery.';
    }
  } else {
    await lock?.release();
  }
  byId('awake-state').textContent = text;
  return text;
}

const clicks = {
  'zoom-in': () => zoom(1.5),
  'zoom-out': () => zoom(1 / 1.5),
  'zoom-fit': showWhole,
  ticking: () => { ticking = !ticking; press('ticking', ticking); plan.classList.toggle('ticking', ticking); },
  colors: () => press('colors', plan.classList.toggle('colors')),
  undo: () => { const [which, on] = undoable.pop(); tick(which, !on, true); },
  'tick-area': () => tick([picked], !done[picked]),
  'tick-paint': () => tick(paints[chosen].areas, doneOf(paints[chosen]) < paints[chosen].areas.length),
  'let-go': () => choose(-1, -1),
  'menu-button': () => byId('menu').showModal(),
  'close-menu': () => byId('menu').close(),
  theme: () => { theme = document.documentElement.dataset.theme === 'dark' ? 'light' : 'dark'; stored('vendrel theme', theme); showTheme(); },
  awake: () => { wanted = !wanted; keepAwake(); },
  save: saveFile,
  clear: () => { if (confirm('Untick all areas?')) tick(areas.map((area, i) => i), false); },
};

function start() {
  drawPlan();
  listPaints();
  for (const [id, click] of Object.entries(clicks)) byId(id).addEventListener('click', click);
  byId('load').addEventListener('change', (event) => {
    if (event.target.files[0]) loadFile(event.target.files[0]);
    event.target.value = '';
  });
  byId('mark').textContent = kit.mark;
  darkDevice.addEventListener('change', showTheme);
  document.addEventListener('visibilitychange', () => { if (!document.hidden) keepAwake(); });
  showTheme();
  let kept = null;
  try { kept = JSON.parse(stored(keptAs)); } catch { /* as if nothing was */ }
  takeUp(kept);
  new ResizeObserver(measure).observe(plan);
  measure();
  keepAwake().then((text) => { if (!lock) notify(text); });
}

start();
