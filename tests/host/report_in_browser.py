"""Looks at a report as whoever helps does, and prints what there is to see as JSON: report_in_browser.py PAGE WORDS

For the system's Python, which is the one that has Debian's Selenium.
"""

import json
import sys
import time
from pathlib import Path

from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import WebDriverWait

from site_in_browser import PATIENCE, background, browser


def seconds_to_open(driver, page):
    begin = time.monotonic()
    driver.get(page)
    return time.monotonic() - begin


def shown(driver):
    """The names of the objects that aren't hidden."""
    return [
        each.text
        for each in driver.find_elements(By.CSS_SELECTOR, ".object:not([hidden]) > summary > .name")
    ]


def search(driver, words):
    driver.find_element(By.ID, "search").send_keys(words)
    WebDriverWait(driver, PATIENCE).until(lambda _: driver.find_element(By.ID, "hits").text)
    return {
        "told": driver.find_element(By.ID, "hits").text,
        "shown": shown(driver),
        "marked": [each.text for each in driver.find_elements(By.CSS_SELECTOR, "tr.hit > th") if each.text],
    }


def follow_first_finding(driver):
    """Whether the link of a finding leads to an object that is unfolded, also out of a search."""
    link = driver.find_element(By.CSS_SELECTOR, "#findings a")
    name = link.text
    link.click()
    target = driver.find_element(By.CSS_SELECTOR, ":target")
    WebDriverWait(driver, PATIENCE).until(lambda _: target.get_attribute("open"))
    return {"link": name, "target": target.find_element(By.CLASS_NAME, "name").text, "seen": target.is_displayed()}


def count_unfolded(driver):
    return driver.execute_script("return document.querySelectorAll('.object[open]').length")


def look(driver, page, words):
    return {
        "seconds": seconds_to_open(driver, page),
        "objects": driver.execute_script("return document.querySelectorAll('.object').length"),
        "light": background(driver, "light"),
        "dark": background(driver, "dark"),
        "search": search(driver, words),
        "finding": follow_first_finding(driver),
        "on paper": driver.execute_script(
            "dispatchEvent(new Event('beforeprint'));"
            "const open = document.querySelectorAll('.object[open]').length;"
            "dispatchEvent(new Event('afterprint')); return open"
        ),
        "behind paper": count_unfolded(driver),
        "loaded": driver.execute_script("return performance.getEntriesByType('resource').map((each) => each.name)"),
        "too_wide": driver.execute_script("return document.documentElement.scrollWidth > innerWidth"),
        "alerted": driver.execute_script("return Boolean(window.alerted)"),
        "told": [entry["message"] for entry in driver.get_log("browser")],
    }


def main(page, words):
    driver = browser()
    try:
        seen = look(driver, Path(page).resolve().as_uri(), words)
    finally:
        driver.quit()
    print(json.dumps(seen))


if __name__ == "__main__":
    main(*sys.argv[1:])
