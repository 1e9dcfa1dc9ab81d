#!/usr/bin/python3
"""page_test.py PAGE: paints along with a page in a real browser, with a finger and with keys."""
import json
import pathlib
import re
import sys
import tempfile
import time
import unittest

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import WebDriverWait

PAGE = pathlib.Path(sys.argv.pop(1)).resolve()


class PaintingAlong(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.downloads = tempfile.TemporaryDirectory()
        options = webdriver.ChromeOptions()
        for word in ('headless=new', 'no-sandbox', 'disable-dev-shm-usage', 'window-size=820,1180'):
            options.add_argument('--' + word)
        options.add_experimental_option('prefs', {'download.default_directory': cls.downloads.name})
        options.set_capability('goog:loggingPrefs', {'performance': 'ALL', 'browser': 'ALL'})
        cls.browser = webdriver.Chrome(options=options, service=Service('/usr/bin/chromedriver'))

    @classmethod
    def tearDownClass(cls):
        cls.browser.quit()
        cls.downloads.cleanup()

    def setUp(self):
        self.browser.get(PAGE.as_uri())
        self.run_script('localStorage.clear()')
        self.browser.refresh()

    def run_script(self, script, *values):
        return self.browser.execute_script(script, *values)

    def find(self, name):
        return self.browser.find_element(By.ID, name)

    def pressed(self, name):
        return self.find(name).get_attribute('aria-pressed')

    def done(self):
        return int(self.find('progress').text.split(' of ')[0].replace(',', ''))

    def wait(self, met):
        WebDriverWait(self.browser, 10).until(lambda _: met())

    def tap(self, area):
        """Puts a finger on a place of the area that a painter could hit."""
        x, y = self.run_script('''
            const [area] = arguments, path = byId('a' + area);
            goTo(area);
            return new Promise((found) => requestAnimationFrame(() => requestAnimationFrame(() => {
                const box = path.getBoundingClientRect();
                for (let i = 1; i < 400; i++) {
                    const x = box.left + box.width * (i * .618 % 1), y = box.top + box.height * i / 400;
                    if (document.elementFromPoint(x, y) === path) return found([x, y]);
                }
                found([0, 0]);
            })));''', area)
        self.assertGreater(x + y, 0, f'area {area} is nowhere to be touched')
        at = {'x': x, 'y': y}
        self.browser.execute_cdp_cmd('Input.dispatchTouchEvent', {'type': 'touchStart', 'touchPoints': [at]})
        self.browser.execute_cdp_cmd('Input.dispatchTouchEvent', {'type': 'touchEnd', 'touchPoints': []})

    def largest_areas(self, paint, most):
        return self.run_script('''const [paint, most] = arguments;
            return [...paints[paint].areas].sort((a, b) => areas[b].mm2 - areas[a].mm2).slice(0, most);''', paint, most)

    def test_fifty_ticked_areas_of_five_paints_are_still_ticked_after_a_reload(self):
        paints = self.run_script('return paints.map((p, i) => [p.areas.length, i]).sort((a, b) => b[0] - a[0]).slice(0, 5)')
        self.find('ticking').click()
        for _, paint in paints:
            self.find(f'paint-{paint}').click()
            self.assertEqual(self.pressed(f'paint-{paint}'), 'true')
            for area in self.largest_areas(paint, 10):
                self.tap(area)
        self.assertEqual(self.done(), 50)
        ticked = self.run_script('return doneAreas()')
        progress = self.find('progress').text
        self.assertRegex(progress, r'^50 of [\d,]+ areas, \d+\.\d %$')
        self.browser.refresh()
        self.assertEqual(self.run_script('return doneAreas()'), ticked)
        self.assertEqual(self.find('progress').text, progress)
        self.assertEqual(len(self.browser.find_elements(By.CSS_SELECTOR, '.areas path.done')), 50)

    def test_a_tapped_area_tells_its_paint_and_lights_up_all_of_it_while_the_rest_pales(self):
        area = self.largest_areas(4, 1)[0]
        color = lambda number: self.run_script(
            "return getComputedStyle(byId('a' + arguments[0])).fill", number)
        plain = color(area)
        self.tap(area)
        self.assertIn(self.run_script('return paints[4].name'), self.find('card-text').text)
        self.assertEqual(self.pressed('paint-4'), 'true')
        self.assertNotEqual(color(area), plain)
        lit = self.browser.find_elements(By.CSS_SELECTOR, '.areas .lit path')
        self.assertEqual(len(lit), self.run_script('return paints[4].areas.length'))
        self.assertLess(self.run_script("return +getComputedStyle(document.querySelector('.lines')).strokeOpacity"), 0.5)
        self.find('tick-area').click()
        self.assertEqual(self.done(), 1)
        self.find('undo').click()
        self.assertEqual(self.done(), 0)
        self.find('tick-paint').click()
        self.assertEqual(self.done(), len(lit))
        self.find('let-go').click()
        self.assertEqual(self.browser.find_elements(By.CSS_SELECTOR, '.lit'), [])

    def test_keys_alone_choose_a_paint_tick_its_areas_and_move_the_plan(self):
        box = lambda: self.run_script("return document.querySelector('#plan svg').getAttribute('viewBox')")
        self.find('plan').send_keys('+', '+')
        self.wait(lambda: box() != 'x')
        zoomed = box()
        self.find('plan').send_keys(Keys.ARROW_RIGHT)
        self.wait(lambda: box() != zoomed)
        self.find('paint-2').send_keys(Keys.ENTER)
        self.browser.find_element(By.CSS_SELECTOR, 'summary').send_keys(Keys.ENTER)
        tick = self.browser.find_element(By.CSS_SELECTOR, '#area-list input')
        tick.send_keys(Keys.SPACE)
        self.assertEqual(self.done(), 1)
        unnamed = self.run_script('''return [...document.querySelectorAll('button, input, [tabindex]')].filter((one) =>
            !(one.ariaLabel || one.textContent.trim() || one.labels?.[0]?.textContent.trim())).length''')
        self.assertEqual(unnamed, 0)

    def test_two_fingers_and_the_wheel_zoom_about_the_place_they_hold(self):
        scale = lambda: self.run_script('return view.scale')
        whole = scale()
        touch = lambda kind, *points: self.browser.execute_cdp_cmd('Input.dispatchTouchEvent', {
            'type': kind, 'touchPoints': [{'x': x, 'y': y, 'id': i} for i, (x, y) in enumerate(points)]})
        touch('touchStart', (300, 400), (400, 400))
        touch('touchMove', (200, 400), (500, 400))
        touch('touchEnd')
        pinched = scale()
        self.assertAlmostEqual(pinched / whole, 3, delta=0.3)
        ActionChains(self.browser).scroll_by_amount(0, -200).perform()
        self.browser.execute_cdp_cmd('Input.dispatchMouseEvent', {
            'type': 'mouseWheel', 'x': 350, 'y': 400, 'deltaX': 0, 'deltaY': -200})
        self.wait(lambda: scale() > pinched)
        self.assertEqual(self.run_script('return doneAreas().length'), 0)

    def test_a_saved_file_brings_progress_back_and_another_kits_does_not(self):
        self.run_script('tick([3, 5, 8], true)')
        self.find('menu-button').click()
        self.find('save').click()
        saved = lambda: list(pathlib.Path(self.downloads.name).glob('*.json'))
        self.wait(saved)
        file = saved()[0]
        self.assertEqual(json.loads(file.read_text())['done'], [4, 6, 9])
        self.run_script('takeUp([])')
        self.find('load').send_keys(str(file))
        self.wait(lambda: self.done() == 3)
        other = file.with_name('other.json')
        for text in (json.dumps({'kit': 'ANOTHER', 'done': [1]}), 'no progress'):
            other.write_text(text)
            self.find('load').send_keys(str(other))
            self.wait(lambda: 'That' in self.find('notice').text)
            self.assertEqual(self.run_script('return doneAreas()'), [4, 6, 9])

    def test_light_dark_and_the_screen(self):
        back = lambda: self.run_script('return getComputedStyle(document.body).backgroundColor')
        for device, button in (('light', 'Dark'), ('dark', 'Light')):
            self.browser.execute_cdp_cmd('Emulation.setEmulatedMedia', {
                'features': [{'name': 'prefers-color-scheme', 'value': device}]})
            self.wait(lambda: self.find('theme').get_attribute('textContent') == button)
        dark = back()
        self.run_script("byId('theme').click()")
        self.assertNotEqual(back(), dark)
        self.wait(lambda: self.find('awake-state').get_attribute('textContent'))
        self.run_script("Object.defineProperty(navigator, 'wakeLock', {get() { throw 0; }}); lock = null; keepAwake()")
        self.wait(lambda: 'does not stay on' in self.find('awake-state').get_attribute('textContent'))

    def test_nothing_is_loaded_or_complained_of(self):
        self.assertLess(PAGE.stat().st_size, 2_000_000)
        asked = [json.loads(line['message'])['message'] for line in self.browser.get_log('performance')]
        places = {event['params']['request']['url'].split(',')[0] for event in asked
                  if event['method'] == 'Network.requestWillBeSent'}
        self.assertTrue(all(re.match('file:|data:|blob:', place) for place in places), places)
        self.assertEqual(self.browser.get_log('browser'), [])


if __name__ == '__main__':
    unittest.main()
