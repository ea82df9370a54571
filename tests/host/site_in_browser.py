"""Looks at a page of a site as a reader does, and prints what there is to see as JSON: site_in_browser.py PAGE WORDS

For the system's Python, which is the one that has Debian's Selenium.
"""

import json
import sys
from pathlib import Path

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import WebDriverWait

PATIENCE = 30  # seconds


def browser():
    options = webdriver.ChromeOptions()
    for argument in ("--headless=new", "--no-sandbox", "--disable-gpu", "--window-size=1280,900"):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    return webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)


def background(driver, scheme):
    driver.execute_cdp_cmd(
        "Emulation.setEmulatedMedia", {"features": [{"name": "prefers-color-scheme", "value": scheme}]}
    )
    return driver.execute_script("return getComputedStyle(document.body).backgroundColor")


def search(driver, words):
    field = driver.find_element(By.ID, "search")
    field.send_keys(words)
    WebDriverWait(driver, PATIENCE).until(lambda _: driver.find_element(By.ID, "found").is_displayed())
    found = [each.text for each in driver.find_elements(By.CSS_SELECTOR, "#found b")]
    field.submit()
    WebDriverWait(driver, PATIENCE).until(lambda _: "#" in driver.current_url)
    return found


def too_wide(driver, folder):
    """The pages that have to be scrolled sideways."""
    wide = []
    for page in sorted(folder.glob("*.html")):
        driver.get(page.as_uri())
        if driver.execute_script("return document.documentElement.scrollWidth > innerWidth"):
            wide.append(page.name)
    return wide


def main(page, words):
    driver = browser()
    try:
        driver.get(Path(page).resolve().as_uri())
        seen = {
            "title": driver.title,
            "shown": driver.find_element(By.CSS_SELECTOR, "#side [aria-current]").text,
            "light": background(driver, "light"),
            "dark": background(driver, "dark"),
            "found": search(driver, words),
            "led_to": driver.current_url.rpartition("/")[2],
            "too_wide": too_wide(driver, Path(page).resolve().parent),
            "told": [entry["message"] for entry in driver.get_log("browser")],
        }
    finally:
        driver.quit()
    print(json.dumps(seen))


if __name__ == "__main__":
    main(*sys.argv[1:])
